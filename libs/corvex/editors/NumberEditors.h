// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/NumericEditor.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT IntegerEditor : public NumericEditor
{
    Q_OBJECT

public:
    using NumericEditor::NumericEditor;
};

class CORVEX_EXPORT RealEditor : public NumericEditor
{
    Q_OBJECT

public:
    using NumericEditor::NumericEditor;
};

//! For numbers of both kinds.
class CORVEX_EXPORT NumberEditor : public NumericEditor
{
    Q_OBJECT

public:
    using NumericEditor::NumericEditor;
};

//! The value of a number variable. It is a text: with a decimal point for a floating-point number, or one of
//! "NaN", "Infinity" and "-Infinity".
class CORVEX_EXPORT LargeNumberEditor : public NumericEditor
{
    Q_OBJECT

public:
    using NumericEditor::NumericEditor;

protected:
    Entry stored(const Arithmetic::Result &result, const QString &own, const QString &typed) const override;
};

class CORVEX_EXPORT OpacityEditor : public NumericEditor
{
    Q_OBJECT

public:
    using NumericEditor::NumericEditor;

protected:
    QString ownUnit() const override;
};

class CORVEX_EXPORT ScaleEditor : public NumericEditor
{
    Q_OBJECT

public:
    using NumericEditor::NumericEditor;

protected:
    QString ownUnit() const override;
};

} // namespace Halvane::Corvex::Designer
