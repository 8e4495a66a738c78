// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

//! An object with only an identity. The factory's tables provide its names, or its class does if it is
//! missing there.
class CORVEX_EXPORT NamedObject : public DesignerObject
{
public:
    QString baseName() const override;
    QString displayName() const override;

protected:
    using DesignerObject::DesignerObject;
    // Objects of this kind are never shown on a canvas.
    ObjectView *createGraphicsItem() override { return nullptr; }
};

} // namespace Halvane::Corvex::Designer
