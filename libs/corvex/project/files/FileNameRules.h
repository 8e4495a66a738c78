// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! What projects and images can be called, being files that are carried from one system to another. Each
//! function gives the reason, for the user, why a name will not do, or nothing for a good one.
class CORVEX_EXPORT FileNameRules
{
public:
    static constexpr qsizetype longestProjectName = 248;
    static constexpr qsizetype longestImageName = 255;

    //! A project's name is that of its folder and, with an extension, of its file.
    static QString projectNameError(const QString &name);
    //! An image's name is that of its file, extension included.
    static QString imageNameError(const QString &name);
    //! The same for the contents of a file that is to be the image of that name.
    static QString imageFileError(const QString &path, const QString &name);
    //! Whether the two names have the same image format.
    static bool haveSameFormat(const QString &name, const QString &otherName);
};

} // namespace Halvane::Corvex::Designer
