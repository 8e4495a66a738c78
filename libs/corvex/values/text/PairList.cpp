// SPDX-License-Identifier: MIT
#include "corvex/values/text/PairList.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The first "|" that is not part of an operator "||", or -1.
qsizetype indexOfSeparator(QStringView text)
{
    for (qsizetype i = text.indexOf(u'|'); i >= 0; i = text.indexOf(u'|', i + 1)) {
        if (i + 1 == text.size() || text[i + 1] != u'|') {
            return i;
        }
        ++i;
    }
    return -1;
}

} // namespace

TextPair TextPair::fromString(QStringView text)
{
    const qsizetype separator = indexOfSeparator(text);
    if (separator < 0) {
        return {text.toString(), {}};
    }
    return {text.first(separator).toString(), text.sliced(separator + 1).toString()};
}

QString TextPair::toString() const
{
    return first + u'|' + second;
}

PairList::PairList(const QString &text, bool *ok)
{
    if (!text.isEmpty()) {
        for (const QStringView item : text.split(u", "_s)) {
            m_records.append(TextPair::fromString(item));
        }
    }
    if (ok) {
        *ok = true;
    }
}

QString PairList::toString() const
{
    QStringList items;
    for (const TextPair &pair : m_records) {
        items.append(pair.toString());
    }
    return items.join(u", "_s);
}

} // namespace Halvane::Corvex::Designer
