// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

//! A list of objects affected by an update.
class CORVEX_EXPORT UpdateObjects : public DesignerObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(UpdateObjects, DesignerObject)

public:
    QString baseName() const override;
    QString displayName() const override;

protected:
    using DesignerObject::DesignerObject;
    ObjectView *createGraphicsItem() override;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Designer
