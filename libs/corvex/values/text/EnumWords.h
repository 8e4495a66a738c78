// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! The words for the values of enumerations, which files contain as keys.
class CORVEX_EXPORT EnumWords
{
public:
    //! "Overwrite oldest" for "OverwriteOldest". Translated.
    static QString of(const QString &key);
    //! The key that a text means: a key as it is, or the words for one of \a keys, in any case. The text
    //! itself if it means none.
    static QString keyOf(const QString &text, const QStringList &keys);
};

} // namespace Halvane::Corvex::Designer
