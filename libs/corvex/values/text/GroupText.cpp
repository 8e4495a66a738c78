// SPDX-License-Identifier: MIT
#include "corvex/values/text/GroupText.h"

namespace Halvane::Corvex::Designer {

void GroupText::appendEntry(QString &group, QStringView key, QStringView value)
{
    if (group.isEmpty()) {
        group.reserve(key.size() + value.size() + 3);
    } else {
        group.append(u' ');
    }
    group.append(key).append(QLatin1StringView(": ")).append(value).append(u';');
}

} // namespace Halvane::Corvex::Designer
