// SPDX-License-Identifier: MIT
#include "elements/AnalogInput.h"

#include "corvex/core/properties/RangeProperty.h"

#include "elements/Rows.h"

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

bool AnalogInput::initializeProperties()
{
    static const PropertyTable table{
        channelRow().rank(1),
        row<RangeProperty>("voltageRange", "Voltage Range", RangeInfo(0, 10))
            .rank(2)
            .parameter("rangeStyle", u"MinMax"_s)
            .parameter("suffix", u" V"_s)
            .allowInvalid(),
    };
    return MeasuringInput::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Elements
