// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include <QList>

namespace Halvane::Corvex::Designer {

/*! The registers of one kind that the device offers over Modbus, each bound to the variable or the property
   of an element whose value it carries.

    In an expression an entry is two terms: the address, an integer constant, then the source, a variable or
   an element term.
*/
class CORVEX_EXPORT ModbusMap
{
public:
    //! The numbers by which editors know the kinds ("RegType").
    enum RegisterKind {
        DiscreteInput = 1,
        Coil = 2,
        InputRegister = 4,
        HoldingRegister = 5,
        VirtualRegister = 7,
        VirtualString = 8,
    };

    struct Entry
    {
        int address = 0; //!< with the leading digit of the kind: the first holding register is 40001
        GeneralDataInfo source;

        friend bool operator==(const Entry &, const Entry &) = default;
    };

    explicit ModbusMap(RegisterKind kind)
        : m_kind(kind)
    { }

    /*! Takes the entries of an expression, in its order; an empty one is an empty map. False, with the first
        problem in \a error and no entries, when one is cut short, has no address of the kind or no source, or
        has the address of another one. */
    bool read(const GeneralDataList &terms, QString &error);
    //! When that was the problem, all addresses that several entries have, in five digits.
    const QStringList &repeatedAddresses() const { return m_repeated; }
    GeneralDataList toTerms() const;

    RegisterKind kind() const { return m_kind; }
    const QList<Entry> &entries() const { return m_entries; }
    void append(const Entry &entry) { m_entries.append(entry); }

private:
    RegisterKind m_kind;
    QList<Entry> m_entries;
    QStringList m_repeated;
};

} // namespace Halvane::Corvex::Designer
