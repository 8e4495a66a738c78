// SPDX-License-Identifier: MIT
#include "corvex/variables/DeviceVariable.h"

#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/CollectionProperties.h"

namespace Halvane::Corvex::Designer {

QVariant DeviceVariable::typedValue(const QString &text)
{
    bool ok = false;
    const MapInfo map(text, &ok);
    QVariantMap values;
    for (const auto &[key, value] : map) {
        values.insert(key, value);
    }
    return ok ? QVariant(values) : QVariant();
}

SharedProperty DeviceVariable::initializeValueProperty()
{
    static const PropertyRow prototype =
        row<MapProperty>("value", "Variable Value", MapInfo())
            .description("The values that the device exchanges, by their keys.")
            .rank(10)
            .allowInvalid();
    return prototype.make(this);
}

} // namespace Halvane::Corvex::Designer
