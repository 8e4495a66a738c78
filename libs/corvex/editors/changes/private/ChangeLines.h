// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

#include <optional>

namespace Halvane::Corvex::Designer {

//! One line of a table of changes: a value for a property of an element, an assignment, or a rule.
struct ChangeLine
{
    QString target;   //!< the element, or the readable target of an assignment, or the condition of a rule
    QString property; //!< of the element
    QString value;    //!< as it is stored, or the readable source, or the readable effect of a rule

    bool operator==(const ChangeLine &) const = default;
};

//! The value of a property as lines, and back.
class ChangeLines
{
public:
    enum class Form { States, Changes, Assignments, Rules };
    //! Nothing if values of the property are no changes.
    static std::optional<Form> formOf(const DesignerProperty &property);

    //! Nothing if the value has parts that lines cannot show.
    static std::optional<QList<ChangeLine>> read(const DesignerProperty &property, const QString &stored);

    struct Writing
    {
        QString stored;
        QString error; //!< for the user, with the number of the line
    };
    //! Lines that are not complete are left out.
    static Writing write(const DesignerProperty &property, const QList<ChangeLine> &lines);

    //! Whether the line can be stored.
    static bool isComplete(Form form, const ChangeLine &line);
};

} // namespace Halvane::Corvex::Designer
