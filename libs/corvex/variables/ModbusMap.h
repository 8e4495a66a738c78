// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include <QList>

#include <array>

namespace Halvane::Corvex::Designer {

/*! The registers of one kind that the device offers over Modbus, each bound to a variable or a property of an
    element.

    In an expression an entry consists of two terms: the address, an integer constant, then the source, a
    variable or an element term.
*/
class CORVEX_EXPORT ModbusMap
{
public:
    //! The numbers that editors use for the kinds ("RegType").
    enum RegisterKind {
        DiscreteInput = 1,
        Coil = 2,
        InputRegister = 4,
        HoldingRegister = 5,
        VirtualRegister = 7,
        VirtualString = 8,
    };

    //! What all registers of a kind have in common.
    struct Registers
    {
        RegisterKind kind;
        const char16_t *property; //!< the id of the map's property
        const char16_t *title;    //!< "holding register"
        const char16_t *access;   //!< of a master: "read" or "read/write"
        const char16_t
            *width;           //!< in bits on the wire; empty for virtual registers, which are not on the wire
        const char16_t *type; //!< on the wire: "bit", "int16"
        int base;             //!< the address that is sent as 0
        int first;            //!< the lowest address
        int last;
    };
    static const std::array<Registers, 6> &registers();
    static const Registers &registers(RegisterKind kind);
    //! Five digits, the usual form of an address.
    static QString addressText(int address);

    struct Entry
    {
        int address = 0; //!< includes the leading digit of the kind: the first holding register is 40001
        GeneralDataInfo source;

        friend bool operator==(const Entry &, const Entry &) = default;
    };

    explicit ModbusMap(RegisterKind kind)
        : m_kind(kind)
    { }

    //! Reads the entries of an expression, in its order; an empty expression gives an empty map. Returns
    //! false, with the first problem in \a error and no entries, if an entry is incomplete, lacks an address
    //! of this kind or a source, or repeats an address.
    bool read(const GeneralDataList &terms, QString &error);
    //! What the error of read() does not say, to be put behind it: the repeated addresses, the address
    //! without a variable, or the valid addresses. Translated; empty if there is nothing to add.
    QString detail(const GeneralDataList &terms);
    //! If addresses are repeated, lists all of them, in five digits.
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
