// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;

/*! The validators that need to see more of the model than the property that they validate. Tables of all
   floors name them; they are defined in the room of the project, where the model is known. */
class CORVEX_EXPORT PropertyValidators
{
public:
    /*! The name of a project variable, a screen or an element: format, length, reserved words and everything
        that it must differ from, by the tables of project/ObjectNameRules.cpp. Tells the first failure. */
    static bool identifierElementValidator(const DesignerProperty *property, QString &error);
    //! What is wrong with the name of a variable, a screen or an element.
    enum class NameFault { None, Format, Length, Taken, Reserved };
    static NameFault nameFault(const DesignerObject *object, const QString &name);
    //! Why the validator of its identifier refuses \a name for \a object, whatever that is; empty when it
    //! does not.
    static QString nameError(const DesignerObject *object, const QString &name);
    //! The link of a function element: it names a visual element of the element's screen.
    static bool visualElementValidator(const DesignerProperty *property, QString &error);
    //! The channel of a digital output: no other element of the screen has it.
    static bool digitalChannelValidator(const DesignerProperty *property, QString &error);
    static bool pwmChannelValidator(const DesignerProperty *property, QString &error);
    //! The channel of any other element that has its channel alone.
    static bool channelValidator(const DesignerProperty *property, QString &error);
    //! The members of a group: at least two, all of them valid.
    static bool groupElementsValidator(const DesignerProperty *property, QString &error);
    //! The order of the members of a group: each of them once.
    static bool groupIndexesValidator(const DesignerProperty *property, QString &error);
    //! The elements of a screen: at least one.
    static bool screenElementsValidator(const DesignerProperty *property, QString &error);
    //! The screens of a project: at least one.
    static bool projectScreensValidator(const DesignerProperty *property, QString &error);
};

} // namespace Halvane::Corvex::Designer
