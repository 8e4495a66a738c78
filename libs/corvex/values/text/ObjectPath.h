// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! Dotted paths of names ("group1.rect1"). Names match whole segments: "rect1" is found in "group1.rect1" but
//! not in "group1.rect10". A name with several segments matches consecutive segments.
class CORVEX_EXPORT ObjectPath
{
public:
    //! Whether generated code can contain the path unchanged: all segments are letters, digits and "_", none
    //! is empty, and only the first may begin with a digit.
    static bool isValid(QStringView path);
    //! Whether the name is a valid path with one segment.
    static bool isSegment(QStringView name) { return isValid(name) && !name.contains(u'.'); }
    //! The part before the first "."; the whole path if it has no ".".
    static QStringView firstSegment(QStringView path);
    //! The part after the last "."; the whole path if it has no ".".
    static QStringView lastSegment(QStringView path);
    static bool contains(QStringView path, QStringView name);
    //! Replaces every \a oldName in \a path by \a newName. \return whether there was one.
    static bool replace(QString &path, QStringView oldName, QStringView newName);
};

} // namespace Halvane::Corvex::Designer
