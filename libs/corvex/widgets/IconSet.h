// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QIcon>

namespace Halvane::Corvex::Designer {

//! The icons of all windows. They are drawn in the colors of the application's palette, sharp at every size,
//! and follow a change of the theme.
class CORVEX_EXPORT IconSet
{
public:
    enum Icon {
        Reset,
        Open, //!< opens a dialog or another window
        Add,
        Remove,
        Up,
        Down,
        Search,
        Lock,
        Unlock,
        Eye,
        Folder,
        Link,
        Picture,
        Warning,
        Error,
        More,
        Pick, //!< picks a color
        Bold,
        Italic,
        Underline,
        Overline,
        Strikeout,
        Save,
        Undo,
        Redo,
        Cut,
        Copy,
        Paste,
        Copies,
        ZoomIn,
        ZoomOut,
        ZoomFit,
        Build,
        Play,
        AlignLeft,
        AlignCenter,
        AlignRight,
        AlignTop,
        AlignMiddle,
        AlignBottom,
        DistributeAcross,
        DistributeDown,
        Raise,
        Lower,
        Group,
        Ungroup,
        Question,
        Info,
        History,
        Screens,
        Variables,
        Delete,
        New,
        IconCount
    };
    static QIcon icon(Icon icon);

    //! The icon of a class of objects, in the color of its kind. \a classNames contains the class and its
    //! base classes, the base classes first; the most derived class that has an icon determines it. Null if
    //! none has.
    static QIcon objectIcon(const QStringList &classNames);

    //! The width and the height of icons in fields and lists, in device-independent pixels.
    static constexpr int size = 16;
};

} // namespace Halvane::Corvex::Designer
