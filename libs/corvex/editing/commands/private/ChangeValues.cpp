// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/ChangeValues.h"

#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ChangeValues::ChangeValues(const QList<RequestedValue> &values)
{
    const auto &first = values.constFirst().property;
    const bool isOneProperty = std::ranges::all_of(
        values, [&first](const RequestedValue &value) { return value.property->id() == first->id(); });
    if (isOneProperty) {
        setTitle(u"Change %1"_s, first->name());
    } else {
        setTitle(u"Change %1 values"_s, QString::number(values.size()));
    }
    for (const auto &[property, text] : values) {
        new ChangeProperty(property, text, true, this);
    }
}

} // namespace Halvane::Corvex::Designer
