// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

/*! An object that has its identity and nothing else yet, named by the factory's tables where they know its
   class and by the class itself where they do not. */
class CORVEX_EXPORT NamedObject : public DesignerObject
{
public:
    QString baseName() const override;
    QString displayName() const override;

protected:
    using DesignerObject::DesignerObject;
    // Nothing of this kind is ever shown on a canvas.
    ObjectView *createGraphicsItem() override { return nullptr; }
};

} // namespace Halvane::Corvex::Designer
