// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/UpdateObjectInfo.h"
#include "corvex/values/text/RecordList.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! Updates of objects, in the order in which they are made: what the state of a button does, for example.
class CORVEX_EXPORT UpdateObjectList : public RecordList<UpdateObjectInfo>
{
public:
    using RecordList::RecordList;
    UpdateObjectList() = default;
    //! Items joined with " | "; the list is empty when any of them is refused. Beside others an empty item
    //! stands for an update with nothing set.
    explicit UpdateObjectList(const QString &text, bool *ok = nullptr);

    QString toString() const;
    //! Every item names its object.
    bool isValid() const;
};

} // namespace Halvane::Corvex::Designer
