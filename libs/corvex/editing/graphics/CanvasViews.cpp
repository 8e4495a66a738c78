// SPDX-License-Identifier: MIT
// The views of objects that the factory in core returns.
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/private/ViewMaker.h"
#include "corvex/editing/graphics/GraphicsItem.h"

namespace Halvane::Corvex::Designer {

namespace {

ObjectView *makeView(const QString &className, DesignerObject *object)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    std::unique_ptr<GraphicsItem> item(factory ? factory->createGraphicsItem(className, object) : nullptr);
    return item && item->initialize() ? item.release() : nullptr;
}

[[maybe_unused]] const bool isProvided = (ViewMaker::make = &makeView) != nullptr;

} // namespace

} // namespace Halvane::Corvex::Designer
