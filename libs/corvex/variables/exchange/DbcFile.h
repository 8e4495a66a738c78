// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/variables/CanParameterMap.h"
#include "corvex/variables/exchange/CsvText.h"

namespace Halvane::Corvex::Designer {

//! A signal of a message in a CAN database.
struct CORVEX_EXPORT DbcSignal
{
    QString name;
    QString comment;
    CanParameter parameter;
    //! Why a parameter group cannot contain the signal, for the user; empty if it can.
    QString obstacle;
};

//! A message of a CAN database.
struct CORVEX_EXPORT DbcMessage
{
    QString name;
    QString comment;
    quint32 identifier = 0; //!< with bit 31 if it has 29 bits, as in the file
    //! Why the message cannot be a parameter group; empty if it can.
    QString obstacle;
    QList<DbcSignal> content;

    //! Of identifiers with 29 bits.
    int pgn() const { return int(identifier >> 8 & 0x3FFFF); }
    //! The message as a parameter group, without signals that it cannot contain. Databases often have no
    //! source address (254 or 255); then it is \a sourceAddress.
    CanParameterMap toMap(int sourceAddress) const;
};

/*! The messages and signals of a CAN database (DBC), as far as parameter groups need them: the lines BO_ and
    SG_, comments, and the attribute "SPN".

    A signal without an SPN has the number in its name ("SPN190"), or else the next free one of those that
    J1939 leaves to manufacturers, from 516096 on. Without a range, a signal has the range of its bits.

    A file may be in UTF-8 or, as usual, in Latin-1.
*/
class CORVEX_EXPORT DbcFile
{
public:
    explicit DbcFile(const QByteArray &bytes);

    //! In the order of the file.
    const QList<DbcMessage> &messages() const { return m_messages; }
    //! Lines that cannot be read; the rest of the file can be used.
    const QList<CsvText::Problem> &problems() const { return m_problems; }

private:
    QList<DbcMessage> m_messages;
    QList<CsvText::Problem> m_problems;
};

} // namespace Halvane::Corvex::Designer
