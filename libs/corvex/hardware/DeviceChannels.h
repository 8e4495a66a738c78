// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/EnumHelper.h"
#include "corvex/common/Export.h"

#include <QLatin1StringView>

#include <array>
#include <span>

namespace Halvane::Corvex::Designer {

class Configuration;

//! Which channels of a device the elements of a class use.
struct CORVEX_EXPORT DeviceChannels
{
    QLatin1StringView elementClass;
    QLatin1StringView list; //!< the property of the configuration that lists the channels
    const char *name;       //!< "PWM outputs"; English
    //! The signals with which a channel serves the elements. UNUSED only where users switch channels on.
    std::array<Common::EnumHelper::InputOutputType, 3> signalTypes;

    static std::span<const DeviceChannels> all();
    //! Null for elements without channels in a configuration.
    static const DeviceChannels *of(const QString &elementClass);

    //! The channels, counted from 1, that can serve the elements, in order.
    QList<int> available(const Configuration &model) const;
};

} // namespace Halvane::Corvex::Designer
