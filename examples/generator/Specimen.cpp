// SPDX-License-Identifier: MIT
#include "Specimen.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/TableFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/ColorProperties.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/core/properties/FieldbusErrorProperties.h"
#include "corvex/core/properties/GradientStopsProperty.h"
#include "corvex/core/properties/IOErrorProperty.h"
#include "corvex/core/properties/ValueRangeProperty.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Examples {

using namespace Designer;

Specimen *Specimen::create(const QString &name)
{
    auto *made = static_cast<Specimen *>(makeObject<Specimen>(nullptr));
    made->initialize();
    made->setIdName(name);
    return made;
}

bool Specimen::initializeProperties()
{
    static const PropertyTable table{
        row<RealProperty>("number", "Number", 1.5)
            .rank(2)
            .editor("NumberEditor")
            .parameter("above", 0)
            .parameter("suffix", u" bar"_s),
        row<ValueRangeProperty>("sensorRange", "Sensor Range", ValueRangeInfo(0, 50, 0, 100))
            .rank(3)
            .parameter("suffix", u" \u00B0C"_s),
        row<ConditionProperty>("alarm", "Alarm", ConditionInfo(u"GT"_s, 10, u"LE"_s, 20, false)).rank(4),
        row<SendErrorProperty>("sendErrors", "Send Errors", SendErrorInfo(false, true)).rank(5),
        row<ReceiveErrorProperty>("receiveErrors", "Receive Errors",
                                  ReceiveErrorInfo(true, false, false, false))
            .rank(6),
        row<IOErrorProperty>("ioErrors", "Channel Errors", IOErrorInfo(true, false)).rank(7),
        row<GradientStopsProperty>("gradient", "Gradient", GradientStopsProperty::initValue()).rank(8),
        row<ColorListProperty>("colors", "Colors", 3).rank(9).editor("ColorListEditor"),
    };
    return VisualElement::initializeProperties() && addProperties(table);
}

} // namespace Halvane::Corvex::Examples
