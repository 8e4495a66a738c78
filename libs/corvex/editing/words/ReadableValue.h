// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/values/expressions/ExpressionPurpose.h"
#include "corvex/variables/exchange/VariableImport.h"

#include <QString>

namespace Halvane::Corvex::Designer {

class Project;
class ProjectNames;

/*! The values of properties in the form that people write: `level > 10 and pump.visible` for an expression,
    `120 x 40` for a size, `{ lamp.color: #C62828 }` for a state.

    Each form belongs to a kind of property. A value without a readable form is written as it is stored. Any
    value can be in double quotes with escapes, except an expression, where quotes make a text. A text with
    quotes, line breaks or blanks at its ends is printed in them.
*/
class CORVEX_EXPORT ReadableValue
{
public:
    struct Reading
    {
        QString stored; //!< the text for the property
        QString error;  //!< for the user; empty if the text could be read
    };
    //! Reads the readable or the stored form of a value of \a property. Whether the property accepts the
    //! value is not checked.
    static Reading read(const DesignerProperty &property, const QString &text);
    //! The same for the fields of a table. Quotes are a part of a text, and the object of the property need
    //! not be in the project whose names its value contains. \a project must outlive the function.
    static VariableImport::FieldReader fieldReader(const Project &project);
    // For an expression that is no value of a property. Without \a names, its names need their types.
    static Reading readExpression(const QString &text, const ExpressionPurpose &purpose,
                                  const ProjectNames *names);
    static QString printExpression(const GeneralDataList &terms, const ExpressionPurpose &purpose,
                                   const ProjectNames *names);

    //! The readable form of a value of \a property, which read() reads as the same stored text. The types in
    //! an expression are looked up, so the form can change with the objects that the value names. For an
    //! object outside of a project it is the stored form.
    static QString print(const DesignerProperty &property, const QString &stored);
    //! The same for an object that need not be in the project whose names its value contains.
    static QString print(const DesignerProperty &property, const QString &stored, const Project &project);
    static QString print(const DesignerProperty &property) { return print(property, property.valueString()); }
};

} // namespace Halvane::Corvex::Designer
