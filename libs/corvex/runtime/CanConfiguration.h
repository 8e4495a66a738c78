// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QVariantMap>

namespace Halvane::Corvex::Designer {

class CANVariable;

/*! The parameter groups that the device receives and sends, for the file canConfig.kdrc.

    All values are texts. "pgnInfo" contains a record for each group, under "PGN,ADDRESS": "pgn", "priority",
    "sourceAddress", "dataCount" (the number of parameters), and nine entries for each parameter: "idSPN|KEY"
    and so on. KEY is "NAME,N": the name of the variable and the position of the parameter in its map, from 1.
    "canIdInfo" maps the decimal CAN identifier of a message to the key of its group.
*/
class CORVEX_EXPORT CanConfiguration
{
public:
    //! Variables of the same group share its record, which keeps the priority of the first one. A variable
    //! with an invalid map is skipped.
    void add(const CANVariable &variable);

    QVariantMap toMap() const;

private:
    QMap<QString, QVariantMap> m_groups;
    QVariantMap m_identifiers;
};

} // namespace Halvane::Corvex::Designer
