// SPDX-License-Identifier: MIT
#include "corvex/values/ListInfo.h"

#include "corvex/values/NestedText.h"

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

ListInfo::ListInfo(QStringView text, bool *ok)
{
    text = text.trimmed();
    const bool hasItems = !text.isEmpty();
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (NestedText::isItemSeparator(text, i)) {
            append(NestedText::fromField(text.sliced(start, i - start).trimmed()));
            start = i + 1;
        }
    }
    if (hasItems)
        append(NestedText::fromField(text.sliced(start).trimmed()));
    if (ok)
        *ok = hasItems;
}

QString ListInfo::toString() const
{
    if (size() == 1 && first().isEmpty())
        return NestedText::loneEmptyItem.toString();
    QString text;
    for (qsizetype i = 0; i < size(); ++i)
        text.append(i == 0 ? ""_L1 : " | "_L1).append(NestedText::toItem(at(i)));
    return text;
}

} // namespace Halvane::Corvex::Designer
