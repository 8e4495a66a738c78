// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/text/RecordList.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! A list of texts, such as object names or pairs "name|value".
class CORVEX_EXPORT ListInfo : public RecordList<QString>
{
public:
    using RecordList::RecordList;
    ListInfo() = default;
    //! "pump1 | pump2". A "|" separates items only if it has a space or the end of the text on both sides.
    explicit ListInfo(const QString &text, bool *ok = nullptr);

    //! Returns whether the item was in the list.
    bool removeOne(const QString &item) { return m_records.removeOne(item); }
    //! Keeps the first occurrence of each item. Returns the number of removed items.
    qsizetype removeDuplicates() { return m_records.removeDuplicates(); }
    void sort(Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) { m_records.sort(sensitivity); }
    QString join(const QString &separator) const { return m_records.join(separator); }

    //! Items that could not be read back are escaped (see NestedText).
    QString toString() const;
};

} // namespace Halvane::Corvex::Designer
