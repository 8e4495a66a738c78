// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/text/RecordList.h"

#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Designer {

/*! Two texts that belong together, either of which may be missing: "first|second", "first|" or "|second".

    The texts may be expressions: the "||" of an operator does not part them.
*/
struct CORVEX_EXPORT TextPair
{
    QString first;
    QString second;

    //! The whole text is the first when there is nothing that parts it.
    static TextPair fromString(QStringView text);
    QString toString() const;

    friend bool operator==(const TextPair &, const TextPair &) = default;
};

//! Pairs joined with ", ", such as the rules of a logic builder: what must hold, and what happens then.
class CORVEX_EXPORT PairList : public RecordList<TextPair>
{
public:
    using RecordList::RecordList;
    PairList() = default;
    explicit PairList(const QString &text, bool *ok = nullptr);

    QString toString() const;
};

} // namespace Halvane::Corvex::Designer
