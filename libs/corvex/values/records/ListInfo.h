// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/text/RecordList.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! A list of texts, such as names of objects or pairs "name|value".
class CORVEX_EXPORT ListInfo : public RecordList<QString>
{
public:
    using RecordList::RecordList;
    ListInfo() = default;
    //! "pump1 | pump2". A "|" without a blank or an end on both its sides belongs to the item.
    explicit ListInfo(const QString &text, bool *ok = nullptr);

    //! Whether the item was there.
    bool removeOne(const QString &item) { return m_records.removeOne(item); }
    //! Keeps the first of each and tells how many were removed.
    qsizetype removeDuplicates() { return m_records.removeDuplicates(); }
    void sort(Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) { m_records.sort(sensitivity); }
    QString join(const QString &separator) const { return m_records.join(separator); }

    //! An item that would not read back is escaped (see NestedText).
    QString toString() const;
};

} // namespace Halvane::Corvex::Designer
