// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/runtime/PropertyInfo.h"
#include "corvex/values/text/RecordList.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! Values of properties, in the order of assignment.
class CORVEX_EXPORT PropertyInfoList : public RecordList<PropertyInfo>
{
public:
    using RecordList::RecordList;
    PropertyInfoList() = default;
    //! Items joined with " | ". The list is empty if any item is invalid.
    explicit PropertyInfoList(const QString &text, bool *ok = nullptr);

    QString toString() const;
    //! Every item has a name.
    bool isValid() const;
};

} // namespace Halvane::Corvex::Designer
