// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT SingleLineEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT PlainTextEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT ReadOnlyLineEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT OriginalLocationEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT ProjectPasswordEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

} // namespace Halvane::Corvex::Designer
