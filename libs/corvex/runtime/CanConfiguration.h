// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QVariantMap>

namespace Halvane::Corvex::Designer {

class CANVariable;

/*! The parameter groups that the device receives and sends, as the file canConfig.kdrc has them.

    All values are texts. "pgnInfo" holds a record for each group, under "PGN,ADDRESS": "pgn", "priority",
   "sourceAddress", "dataCount" (how many parameters follow), and for each parameter nine entries, "idSPN|KEY"
    and so on. KEY is "NAME,N", the name of the variable and the place of the parameter in its map, from 1.
    "canIdInfo" leads from the decimal CAN identifier of a message to the key of its group.
*/
class CORVEX_EXPORT CanConfiguration
{
public:
    //! Variables of one group share its record, which keeps the priority of the first. A variable whose map
    //! is not valid is left out.
    void add(const CANVariable &variable);

    QVariantMap toMap() const;

private:
    QMap<QString, QVariantMap> m_groups;
    QVariantMap m_identifiers;
};

} // namespace Halvane::Corvex::Designer
