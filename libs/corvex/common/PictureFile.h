// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common {

//! What is asked of the file of a picture before anything draws it.
class CORVEX_COMMON_EXPORT PictureFile
{
public:
    /*! Why the picture is not to be drawn, in a text for the user; empty when it may be, or is no picture. A
       drawing (SVG) may name other files, and whoever draws it would read them: only parts of the drawing
       itself, and pictures of dots within it, are let through. */
    static QString problem(const QString &path);
};

} // namespace Halvane::Corvex::Common
