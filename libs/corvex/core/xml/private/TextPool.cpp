// SPDX-License-Identifier: MIT
#include "corvex/core/xml/private/TextPool.h"

#include <utility>

namespace Halvane::Corvex::Designer {

QString TextPool::text(QByteArrayView utf8)
{
    // Long texts are rarely equal, so skip the lookup.
    constexpr qsizetype longest = 512;
    if (utf8.size() > longest) {
        return QString::fromUtf8(utf8);
    }
    const QByteArray bytes = QByteArray::fromRawData(utf8.data(), utf8.size());
    if (const auto found = m_texts.constFind(bytes); found != m_texts.constEnd()) {
        return *found;
    }
    const QString text = QString::fromUtf8(utf8);
    const auto hash = quint32(qHash(bytes));
    if (std::exchange(m_seen[hash % m_seen.size()], hash) == hash) {
        m_texts.insert(utf8.toByteArray(), text);
    }
    return text;
}

} // namespace Halvane::Corvex::Designer
