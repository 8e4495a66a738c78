// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT VerticalBooleanExpressionEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT VerticalMathExpressionEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT VerticalStringExpressionEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

} // namespace Halvane::Corvex::Designer
