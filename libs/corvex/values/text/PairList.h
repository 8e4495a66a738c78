// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/values/text/RecordList.h"

#include <QString>
#include <QStringView>

namespace Halvane::Corvex::Designer {

//! A pair of texts, either of which may be missing: "first|second", "first|" or "|second".
//!
//! The texts may be expressions: the operator "||" does not separate them.
struct CORVEX_EXPORT TextPair
{
    QString first;
    QString second;

    //! Without a separator the whole text is the first one.
    static TextPair fromString(QStringView text);
    QString toString() const;

    friend bool operator==(const TextPair &, const TextPair &) = default;
};

//! Pairs joined with ", ", such as the conditions and effects of a logic builder.
class CORVEX_EXPORT PairList : public RecordList<TextPair>
{
public:
    using RecordList::RecordList;
    PairList() = default;
    explicit PairList(const QString &text, bool *ok = nullptr);

    QString toString() const;
};

} // namespace Halvane::Corvex::Designer
