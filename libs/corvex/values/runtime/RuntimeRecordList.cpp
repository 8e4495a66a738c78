// SPDX-License-Identifier: MIT
#include "corvex/values/runtime/RuntimeRecordList.h"

#include "corvex/values/runtime/RuntimeLists.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

template<class Record>
RuntimeRecordList<Record> &RuntimeRecordList<Record>::operator<<(const Record &record)
{
    append(record);
    return *this;
}

template<class Record>
RuntimeRecordList<Record> &RuntimeRecordList<Record>::operator<<(const QList<Record> &records)
{
    append(records);
    return *this;
}

template<class Record>
int RuntimeRecordList<Record>::remove(const QString &name)
{
    const qsizetype index = indexOf(name);
    m_records.takeAt(index);
    return index < 0 ? 0 : 1;
}

template<class Record>
QStringList RuntimeRecordList<Record>::names() const
{
    QStringList names;
    names.reserve(size());
    for (const Record &record : *this) {
        names.append(record.property());
    }
    return names;
}

template<class Record>
QMap<QString, Record> RuntimeRecordList<Record>::toMap() const
{
    QMap<QString, Record> map;
    for (const Record &record : *this) {
        map.insert(map.cend(), record.property(), record);
    }
    return map;
}

template<class Record>
QList<Record> RuntimeRecordList<Record>::toSortedList() const
{
    QMap<QString, Record> shown;
    for (const Record &record : *this) {
        shown.insert(record.displayName(), record);
    }
    return shown.values();
}

template<class Record>
bool RuntimeRecordList<Record>::isSimilar(const RuntimeRecordList &other) const
{
    return std::equal(begin(), end(), other.begin(), other.end(),
                      [](const Record &a, const Record &b) { return a.isSimilar(b); });
}

template class RuntimeRecordList<RuntimeProperty>;
template class RuntimeRecordList<RuntimeAutoSettingProperty>;

} // namespace Halvane::Corvex::Designer
