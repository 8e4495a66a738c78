// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

#include <QString>

namespace Halvane::Corvex::Designer {

/*! What the fixed texts of the library leave open: which of several, how long a name has to be, what would
   do. Each answer is the text, and where there is more to say a sentence that follows it. */
class Explanation
{
public:
    //! For a name that \a object was to get, and the reason against it.
    static QString ofName(const DesignerObject &object, const QString &name, const QString &reason);
    //! For an item that a list did not take, and its reason.
    static QString ofItem(const DesignerObject &item, const SharedProperty &list, const QString &reason);
    //! Why a file is no image for a project; empty for one that is.
    static QString ofImageFile(const QString &path);
};

} // namespace Halvane::Corvex::Designer
