// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/DeviceVariable.h"

#include <optional>

namespace Halvane::Corvex::Designer {

//! An object that the panel exposes over BACnet. See BACnetPropertyList for its properties.
class CORVEX_EXPORT BACnetObject : public DeviceVariable
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(BACnetObject, ProjectVariable)

public:
    //! Identifies an object within its device.
    struct Identifier
    {
        int type;     //!< 0 to 1023
        int instance; //!< 0 to 4194302

        friend bool operator==(const Identifier &, const Identifier &) = default;
    };
    //! Reads "type,instance". Spaces around the numbers are ignored.
    static std::optional<Identifier> readIdentifier(const QString &text);

protected:
    using DeviceVariable::DeviceVariable;
    bool initializeProperties() override;
};

} // namespace Halvane::Corvex::Designer
