// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/expressions/UpdateObjectInfo.h"
#include "corvex/values/text/RecordList.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! Updates of objects, in order of execution, such as those of a button's state.
class CORVEX_EXPORT UpdateObjectList : public RecordList<UpdateObjectInfo>
{
public:
    using RecordList::RecordList;
    UpdateObjectList() = default;
    //! Items joined with " | ". The list is empty if any item is invalid. Between other items, an empty item
    //! is an update that sets nothing.
    explicit UpdateObjectList(const QString &text, bool *ok = nullptr);

    QString toString() const;
    //! Every item names its object.
    bool isValid() const;
};

} // namespace Halvane::Corvex::Designer
