// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class DesignerProperty;

//! Validators that need to look beyond the property itself. Tables of all layers refer to them; they are
//! defined in the module "project", where the model is known.
class CORVEX_EXPORT PropertyValidators
{
public:
    //! The name of a project variable, a screen or an element: checks its format, its length, reserved words
    //! and all names that it must differ from, as defined in project/ObjectNameRules.cpp. Reports the first
    //! failure.
    static bool identifierElementValidator(const DesignerProperty *property, QString &error);
    //! The problem with the name of a variable, a screen or an element.
    enum class NameFault { None, Format, Length, Taken, Reserved };
    static NameFault nameFault(const DesignerObject *object, const QString &name);
    //! Why the identifier's validator refuses \a name for \a object, of any kind; empty if it accepts the
    //! name.
    static QString nameError(const DesignerObject *object, const QString &name);
    //! The link of a function element: it must name a visual element on the element's screen.
    static bool visualElementValidator(const DesignerProperty *property, QString &error);
    //! The channel of a digital output: no other element of the screen may use it.
    static bool digitalChannelValidator(const DesignerProperty *property, QString &error);
    static bool pwmChannelValidator(const DesignerProperty *property, QString &error);
    //! The channel of any other element that does not share its channel.
    static bool channelValidator(const DesignerProperty *property, QString &error);
    //! The members of a group: at least two, all valid.
    static bool groupElementsValidator(const DesignerProperty *property, QString &error);
    //! The order of the members of a group: each exactly once.
    static bool groupIndexesValidator(const DesignerProperty *property, QString &error);
    //! The elements of a screen: at least one.
    static bool screenElementsValidator(const DesignerProperty *property, QString &error);
    //! The screens of a project: at least one.
    static bool projectScreensValidator(const DesignerProperty *property, QString &error);
};

} // namespace Halvane::Corvex::Designer
