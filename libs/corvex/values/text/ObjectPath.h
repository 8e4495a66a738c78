// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

/*!
    Dotted paths of names ("group1.rect1"). A name matches whole segments, so that "rect1" is found in
    "group1.rect1" and not in "group1.rect10"; a name of several segments matches them in a row.
*/
class CORVEX_EXPORT ObjectPath
{
public:
    //! Whether generated code can hold the path as it stands: segments of letters, digits and "_", none
    //! empty, none after the first beginning with a digit.
    static bool isValid(QStringView path);
    //! Whether it is a valid path of one segment.
    static bool isSegment(QStringView name) { return isValid(name) && !name.contains(u'.'); }
    //! What stands before the first ".", the whole path when there is none.
    static QStringView firstSegment(QStringView path);
    //! What stands behind the last ".", the whole path when there is none.
    static QStringView lastSegment(QStringView path);
    static bool contains(QStringView path, QStringView name);
    //! Puts \a newName wherever \a path contains \a oldName. \return whether it does.
    static bool replace(QString &path, QStringView oldName, QStringView newName);
};

} // namespace Halvane::Corvex::Designer
