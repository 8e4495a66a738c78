// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! The words for the values of enumerations, which files contain as keys.
class CORVEX_EXPORT EnumWords
{
public:
    //! "Overwrite oldest" for "OverwriteOldest". Translated.
    static QString of(const QString &key);
};

} // namespace Halvane::Corvex::Designer
