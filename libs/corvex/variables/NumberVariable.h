// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/ProjectVariable.h"

namespace Halvane::Corvex::Designer {

//! An integer or a floating number, which the decimal point alone decides: "1" is an integer, "1.0" is not.
class CORVEX_EXPORT NumberVariable : public ProjectVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(NumberVariable, ProjectVariable)

public:
    VariableType variableType() const override { return typeOf(value()->valueString()); }
    QVariant toVariant() const override { return typedValue(value()->valueString()); }

    //! FloatVariable for a text with a decimal point and for "NaN", "Infinity" and "-Infinity".
    static VariableType typeOf(const QString &text);
    //! A float or an int of 32 bits; invalid when the text is no number.
    static QVariant typedValue(const QString &text);
    //! Whether the value of the variable is a number; that of a log is, too.
    static bool holdsNumber(const DesignerObject &variable);
    //! Whether a variable that is to hold a number, a log among them, has a text that is none: the model
    //! keeps it, and the device would start without a value.
    static bool lacksNumber(const ProjectVariable &variable);
    //! Whether the device can hold the number; a text that is none passes.
    static bool isWithinLimits(const QString &text, QString &error);
    //! The property "value" of variables that hold a number.
    static const PropertyRow &numberRow();

protected:
    using ProjectVariable::ProjectVariable;
    SharedProperty initializeValueProperty() override;
};

} // namespace Halvane::Corvex::Designer
