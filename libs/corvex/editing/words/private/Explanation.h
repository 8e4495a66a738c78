// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! Adds details to the library's fixed texts: which object is meant, how long a name must be, what would be
//! accepted. Each function returns the text, followed by a sentence if there is more to say.
class Explanation
{
public:
    //! For a name that \a object cannot get, and the reason.
    static QString ofName(const DesignerObject &object, const QString &name, const QString &reason);
    //! For a name that no image can have, and the reason.
    static QString ofImageName(const QString &name, const QString &reason);
    //! For an item that a list did not accept, and the reason.
    static QString ofItem(const DesignerObject &item, const SharedProperty &list, const QString &reason);
    //! Why a file is not an image for a project; empty if it is.
    static QString ofImageFile(const QString &path);
};

} // namespace Halvane::Corvex::Designer
