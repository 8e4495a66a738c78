// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include <QList>

namespace Halvane::Corvex::Designer {

/*! The properties of a BACnet object, each with the type and the source of its value.

    In an expression an entry consists of three terms: the name of the property and the name of the data type,
    both string constants, then the source, which is a constant, a variable or an element term. The names are
    those of EnumHelper; a property without a name there is written as its number.
*/
class CORVEX_EXPORT BACnetPropertyList
{
public:
    struct Entry
    {
        int property = 0; //!< BACnetPropertyIdentifier, 0 to 4194303
        QString dataType; //!< "real"
        GeneralDataInfo source;

        friend bool operator==(const Entry &, const Entry &) = default;
    };

    BACnetPropertyList() = default;

    //! Returns false, with the first problem in \a error and no entries, if the terms are empty, are not such
    //! a list, or name a property twice.
    bool read(const GeneralDataList &terms, QString &error);
    GeneralDataList toTerms() const;

    const QList<Entry> &entries() const { return m_entries; }
    void append(const Entry &entry) { m_entries.append(entry); }

    //! The name of a property, or its number in digits if it has no name.
    static QString propertyName(int property);
    //! The number of the property with that propertyName(); -1 for any other name.
    static int propertyNumber(const QString &name);

private:
    QList<Entry> m_entries;
};

} // namespace Halvane::Corvex::Designer
