// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/UpdateObjectList.h"

#include "corvex/values/text/NestedText.h"

#include <QStringTokenizer>

#include <algorithm>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

UpdateObjectList::UpdateObjectList(const QString &text, bool *ok)
{
    const QStringView items = QStringView(text).trimmed();
    bool parsed = !items.isEmpty();
    m_records.reserve(items.count(u'|') + 1);
    for (QStringView item : qTokenize(items, u'|')) {
        item = item.trimmed();
        if (item.isEmpty() || item == NestedText::loneEmptyItem) {
            append(UpdateObjectInfo());
        } else {
            append(UpdateObjectInfo(item.toString(), &parsed));
        }
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

QString UpdateObjectList::toString() const
{
    QString text;
    for (qsizetype i = 0; i < size(); ++i) {
        text.append(i == 0 ? ""_L1 : " | "_L1).append(at(i).toString());
    }
    return size() == 1 && text.isEmpty() ? NestedText::loneEmptyItem.toString() : text;
}

bool UpdateObjectList::isValid() const
{
    return std::all_of(begin(), end(), [](const UpdateObjectInfo &item) { return item.isValid(); });
}

} // namespace Halvane::Corvex::Designer
