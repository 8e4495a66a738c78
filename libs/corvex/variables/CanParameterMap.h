// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/GeneralDataList.h"

#include <QList>

namespace Halvane::Corvex::Designer {

//! One suspect parameter (SPN) in the eight data bytes of a J1939 message, which is sent with the least
//! significant byte first.
struct CORVEX_EXPORT CanParameter
{
    int spn = 0;    //!< suspect parameter number, 0 to 524287
    QString units;  //!< of the scaled value; may be empty
    int byte = 1;   //!< where it starts, 1 to 8
    int bit = 1;    //!< the lowest bit in that byte, 1 to 8
    int length = 8; //!< in bits, 1 to 64
    double offset = 0;
    double minimum = 0; //!< of the scaled value
    double maximum = 0;
    double scaling = 1; //!< value = raw value × scaling + offset

    friend bool operator==(const CanParameter &, const CanParameter &) = default;
};

/*! A J1939 parameter group with the parameters that a variable carries.

    In an expression the group is three integer constants, PGN, priority and source address. Nine terms for
   each parameter follow, in the order of the fields of CanParameter: SPN, units (a string constant), byte,
   bit and length (integers), offset, minimum, maximum and scaling (numbers).
*/
class CORVEX_EXPORT CanParameterMap
{
public:
    CanParameterMap() = default;

    //! False, with the first problem in \a error and an empty map, when the terms are not such a group or a
    //! value is out of its range.
    bool read(const GeneralDataList &terms, QString &error);
    GeneralDataList toTerms() const;

    //! Parameter group number, 18 bits. Below 0xF000 in its low 16 bits (PDU1) the low byte is the
    //! destination.
    int pgn() const { return m_pgn; }
    void setPgn(int pgn) { m_pgn = pgn; }
    //! 0 (highest) to 7.
    int priority() const { return m_priority; }
    void setPriority(int priority) { m_priority = priority; }
    //! 0 to 253; 254 and 255 are no address of a device.
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
