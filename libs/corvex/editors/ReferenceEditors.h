// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

namespace Halvane::Corvex::Designer {

class CORVEX_EXPORT IdentifierEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT LinkEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT ObjectEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT ImageSourceEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT AutosaveObjectEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

class CORVEX_EXPORT ItemsOrderEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;
};

} // namespace Halvane::Corvex::Designer
