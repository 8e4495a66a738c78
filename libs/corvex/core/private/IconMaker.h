// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! How DesignerFactory::getObjectIcon() draws the icon of a class. The icon set, on a higher layer, provides
//! it when the library is loaded.
struct IconMaker
{
    //! \a classNames contains the base classes first. Null if none of the classes has an icon.
    using Function = QPixmap (*)(const QStringList &classNames);
    static inline constinit Function make = nullptr;
};

} // namespace Halvane::Corvex::Designer
