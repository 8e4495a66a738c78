// SPDX-License-Identifier: MIT
#include "corvex/core/properties/TextForm.h"

#include <QCache>

namespace Halvane::Corvex::Designer {

QFont TextForm<QFont>::parse(const QString &text, bool *ok)
{
    static thread_local QCache<QString, QFont> known(64);
    if (const QFont *font = known.object(text)) {
        *ok = true;
        return *font;
    }
    const QFont font = ValueConversion::toFont(text, ok);
    if (*ok) {
        known.insert(text, new QFont(font));
    }
    return font;
}

} // namespace Halvane::Corvex::Designer
