// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

//! An integer or a floating number. Only the decimal point decides: "1" is an integer, "1.0" is not.
class CORVEX_EXPORT NumberVariable : public ProjectVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(NumberVariable, ProjectVariable)

public:
    VariableType variableType() const override { return typeOf(value()->valueString()); }
    QVariant toVariant() const override { return typedValue(value()->valueString()); }

    //! FloatVariable for a text with a decimal point, and for "NaN", "Infinity" and "-Infinity".
    static VariableType typeOf(const QString &text);
    //! A float or an int of 32 bits; invalid if the text is not a number.
    static QVariant typedValue(const QString &text);
    //! Whether the value of the variable is a number. This includes logs.
    static bool holdsNumber(const DesignerObject &variable);
    //! Whether a number variable or a log has a text that is not a number. The model keeps such a text, but
    //! the device would start without a value.
    static bool lacksNumber(const ProjectVariable &variable);
    //! Whether the device supports the number. A text that is not a number passes.
    static bool isWithinLimits(const QString &text, QString &error);
    //! The row of the property "value" for variables with a number.
    static const PropertyRow &numberRow();

protected:
    using ProjectVariable::ProjectVariable;
    SharedProperty initializeValueProperty() override;
};

} // namespace Halvane::Corvex::Designer
