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
    DesignerObject *parent = nullptr; //!< of a property that is not in a block
    QString error;
    std::unique_ptr<ItemList> items;
    DesignerObject *objectValue = nullptr;
    EditorView *editorWidget = nullptr;
    // Two properties may be in conflict with each other: pointers that own would never be released.
    QList<QWeakPointer<DesignerProperty>> conflicts;
};

} // namespace Halvane::Corvex::Designer
