// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Common {

//! Checks image files before they are drawn.
class CORVEX_COMMON_EXPORT PictureFile
{
public:
    //! Why the image must not be drawn, as a text for the user; empty if it may be drawn or is not an image.
    //! A drawing (SVG) can refer to other files, which drawing it would read. Only references to parts of the
    //! drawing itself and to embedded raster images are accepted.
    static QString problem(const QString &path);
};

} // namespace Halvane::Corvex::Common
