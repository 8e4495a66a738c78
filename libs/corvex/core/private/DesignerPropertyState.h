// SPDX-License-Identifier: MIT
// Private to the sources of DesignerProperty; not installed.
#pragma once

#include "corvex/core/DesignerProperty.h"
#include "corvex/core/ItemList.h"

#include <QSharedDataPointer>

#include <memory>

namespace Halvane::Corvex::Designer {

struct DesignerProperty::State
{
    QSharedDataPointer<PropertyDescriptor> descriptor;
    DesignerObject *parent = nullptr; //!< of a property outside of a block
    QString error;
    std::unique_ptr<ItemList> items;
    DesignerObject *objectValue = nullptr;
    EditorView *editorWidget = nullptr;
    // Weak, because two properties may conflict with each other and would never be released.
    QList<QWeakPointer<DesignerProperty>> conflicts;
};

} // namespace Halvane::Corvex::Designer
