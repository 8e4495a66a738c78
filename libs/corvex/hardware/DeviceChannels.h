// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/common/Export.h"

#include <QLatin1StringView>

#include <array>
#include <span>

namespace Halvane::Corvex::Designer {

class Configuration;

//! The channels of a device that the elements of a class use.
struct CORVEX_EXPORT DeviceChannels
{
    QLatin1StringView elementClass;
    QLatin1StringView list; //!< the property of the configuration that lists the channels
    const char *name;       //!< "PWM outputs"; English
    //! The signal types of channels that the elements can use. Contains UNUSED only if users must enable the
    //! channels first.
    std::array<Common::EnumHelper::InputOutputType, 3> signalTypes;

    static std::span<const DeviceChannels> all();
    //! Null for elements that use no channels of a configuration.
    static const DeviceChannels *of(const QString &elementClass);

    //! The channels that the elements can use, counted from 1, in order.
    QList<int> available(const Configuration &model) const;
};

} // namespace Halvane::Corvex::Designer
