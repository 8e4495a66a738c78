// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QUrl>

class QPointF;
class QWidget;

namespace Halvane::Corvex::Designer {

class Screen;

//! How ImageResource::addImagesFromUrls() adds images. The commands, on a higher layer, provide it when the
//! library is loaded.
struct ImageAdder
{
    using Function = bool (*)(const QList<QUrl> &urls, Screen *screen, const QPointF &position,
                              QWidget *parentWidget);
    static inline constinit Function add = nullptr;
};

} // namespace Halvane::Corvex::Designer
