// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/NumericEditor.h"

namespace Halvane::Corvex::Elements {

//! How often something repeats: a number of times, or a time if the unit of the row is "ms".
class RepeatTimerEditor : public Designer::NumericEditor
{
    Q_OBJECT

public:
    using NumericEditor::NumericEditor;
};

//! A time in milliseconds until something starts.
class StartDelayEditor : public Designer::NumericEditor
{
    Q_OBJECT

public:
    using NumericEditor::NumericEditor;

protected:
    QString ownUnit() const override { return QStringLiteral("ms"); }
};

} // namespace Halvane::Corvex::Elements
