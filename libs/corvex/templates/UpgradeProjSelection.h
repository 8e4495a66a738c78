// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/NamedObject.h"

namespace Halvane::Corvex::Designer {

//! The projects that the user has selected for an upgrade.
class CORVEX_EXPORT UpgradeProjSelection : public NamedObject
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(UpgradeProjSelection, DesignerObject)

protected:
    using NamedObject::NamedObject;
};

} // namespace Halvane::Corvex::Designer
