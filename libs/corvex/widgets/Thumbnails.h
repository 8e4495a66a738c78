// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QPixmap>
#include <QSize>

namespace Halvane::Corvex::Designer {

class ImageResource;

//! Small pictures of the images of a project, for lists and editors. They are kept until the file changes.
class CORVEX_EXPORT Thumbnails
{
public:
    //! The image within a square of \a edge device-independent pixels, never enlarged. Null if the file
    //! cannot be shown.
    static QPixmap of(const ImageResource &image, int edge, qreal devicePixelRatio);
    //! The size of the image in its own pixels; invalid if the file cannot be read.
    static QSize sizeOf(const ImageResource &image);
};

} // namespace Halvane::Corvex::Designer
