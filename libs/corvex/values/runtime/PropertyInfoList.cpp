// SPDX-License-Identifier: MIT
#include "corvex/values/runtime/PropertyInfoList.h"

#include <QStringTokenizer>

#include <algorithm>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

PropertyInfoList::PropertyInfoList(const QString &text, bool *ok)
{
    bool parsed = true;
    for (const QStringView item : qTokenize(text.trimmed(), u'|')) {
        append(PropertyInfo(item.toString(), &parsed));
        if (!parsed) {
            break;
        }
    }
    if (!parsed) {
        clear();
    }
    if (ok) {
        *ok = parsed;
    }
}

QString PropertyInfoList::toString() const
{
    QString text;
    for (const PropertyInfo &item : *this) {
        text.append(text.isEmpty() ? ""_L1 : " | "_L1).append(item.toString());
    }
    return text;
}

bool PropertyInfoList::isValid() const
{
    return std::all_of(begin(), end(), [](const PropertyInfo &item) { return item.isValid(); });
}

} // namespace Halvane::Corvex::Designer
