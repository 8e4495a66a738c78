// SPDX-License-Identifier: MIT
#include "corvex/checks/private/FilledText.h"

namespace Halvane::Corvex::Designer {

QString filledText(const QString &text, const QStringList &values)
{
    switch (values.size()) {
    case 0:
        return text;
    case 1:
        return text.arg(values[0]);
    case 2:
        return text.arg(values[0], values[1]);
    case 3:
        return text.arg(values[0], values[1], values[2]);
    default:
        return text.arg(values[0], values[1], values[2], values[3]);
    }
}

} // namespace Halvane::Corvex::Designer
