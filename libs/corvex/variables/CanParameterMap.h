// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include <QList>

namespace Halvane::Corvex::Designer {

//! One suspect parameter (SPN) in the eight data bytes of a J1939 message. The least significant byte is sent
//! first.
struct CORVEX_EXPORT CanParameter
{
    int spn = 0;    //!< suspect parameter number, 0 to 524287
    QString units;  //!< of the scaled value; may be empty
    int byte = 1;   //!< the first byte, 1 to 8
    int bit = 1;    //!< the lowest bit in that byte, 1 to 8
    int length = 8; //!< in bits, 1 to 64
    double offset = 0;
    double minimum = 0; //!< of the scaled value
    double maximum = 0;
    double scaling = 1; //!< value = raw value × scaling + offset

    friend bool operator==(const CanParameter &, const CanParameter &) = default;
};

/*! A J1939 parameter group with its parameters.

    In an expression the group consists of three integer constants: PGN, priority and source address. Nine
    terms follow for each parameter, in the order of the fields of CanParameter: SPN, units (a string
    constant), byte, bit and length (integers), offset, minimum, maximum and scaling (numbers).
*/
class CORVEX_EXPORT CanParameterMap
{
public:
    CanParameterMap() = default;

    //! Returns false, with the first problem in \a error and an empty map, if the terms are not such a group
    //! or a value is out of range.
    bool read(const GeneralDataList &terms, QString &error);
    GeneralDataList toTerms() const;

    //! Parameter group number, 18 bits. If its low 16 bits are below 0xF000 (PDU1), the low byte is the
    //! destination.
    int pgn() const { return m_pgn; }
    void setPgn(int pgn) { m_pgn = pgn; }
    //! 0 (highest) to 7.
    int priority() const { return m_priority; }
    void setPriority(int priority) { m_priority = priority; }
    //! 0 to 253; 254 and 255 are not device addresses.
    int sourceAddress() const { return m_sourceAddress; }
    void setSourceAddress(int address) { m_sourceAddress = address; }

    //! The 29 bits of the message's CAN identifier.
    quint32 identifier() const;

    const QList<CanParameter> &parameters() const { return m_parameters; }
    void append(const CanParameter &parameter) { m_parameters.append(parameter); }

private:
    int m_pgn = 0;
    int m_priority = 6;
    int m_sourceAddress = 0;
    QList<CanParameter> m_parameters;
};

} // namespace Halvane::Corvex::Designer
