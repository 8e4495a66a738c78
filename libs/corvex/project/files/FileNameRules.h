// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! The rules for the names of projects and images, which are files that must be valid on every system. Each
//! function returns the reason why a name is invalid, for the user, or an empty text.
class CORVEX_EXPORT FileNameRules
{
public:
    static constexpr qsizetype longestProjectName = 248;
    static constexpr qsizetype longestImageName = 255;

    //! The name of a project is the name of its folder and, with an extension, of its file.
    static QString projectNameError(const QString &name);
    //! The name of an image is its file name, including the extension.
    static QString imageNameError(const QString &name);
    //! Checks whether the contents of a file are an image with the format of that name.
    static QString imageFileError(const QString &path, const QString &name);
    //! Whether the two names have the same image format.
    static bool haveSameFormat(const QString &name, const QString &otherName);
};

} // namespace Halvane::Corvex::Designer
