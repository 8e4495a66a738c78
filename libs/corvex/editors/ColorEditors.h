// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT ColorEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT ScreenColorEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT ColorListEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT GradientStopsEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT BorderEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

} // namespace Halvane::Corvex::Designer
