// SPDX-License-Identifier: MIT
#include "corvex/values/records/ListInfo.h"

#include "corvex/values/text/NestedText.h"

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

ListInfo::ListInfo(const QString &text, bool *ok)
{
    const QStringView items = QStringView(text).trimmed();
    const bool hasItems = !items.isEmpty();
    qsizetype start = 0;
    for (qsizetype i = items.indexOf(u'|'); i >= 0; i = items.indexOf(u'|', i + 1)) {
        if (NestedText::isItemSeparator(items, i)) {
            append(NestedText::fromField(items.sliced(start, i - start).trimmed()));
            start = i + 1;
        }
    }
    if (hasItems) {
        append(NestedText::fromField(items.sliced(start).trimmed()));
    }
    if (ok) {
        *ok = hasItems;
    }
}

QString ListInfo::toString() const
{
    if (size() == 1 && first().isEmpty()) {
        return NestedText::loneEmptyItem.toString();
    }
    QString text;
    for (qsizetype i = 0; i < size(); ++i) {
        text.append(i == 0 ? ""_L1 : " | "_L1).append(NestedText::toItem(at(i)));
    }
    return text;
}

} // namespace Halvane::Corvex::Designer
