// SPDX-License-Identifier: MIT
#include "elements/visual/GraphicsImage.h"

#include "corvex/common/PictureFile.h"
#include "corvex/project/ImageResource.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex::Designer;

namespace Halvane::Corvex::Elements {

namespace {

//! The picture in the current file; drawings are rendered for each size. Null if the file cannot be read, or
//! if it would read other files.
QPixmap pictureOf(const QFileInfo &file, const QSize &size)
{
    const bool isDrawing = file.suffix().compare("svg"_L1, Qt::CaseInsensitive) == 0;
    const QSize wanted = isDrawing ? size : QSize();
    const QString key =
        u"%1|%2|%3x%4"_s.arg(file.filePath(), QString::number(file.lastModified().toMSecsSinceEpoch()),
                             QString::number(wanted.width()), QString::number(wanted.height()));
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture) && file.isFile()
        && Common::PictureFile::problem(file.filePath()).isEmpty()) {
        QImageReader reader(file.filePath());
        if (isDrawing) {
            reader.setScaledSize(wanted);
        }
        picture = QPixmap::fromImageReader(&reader);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

} // namespace

void GraphicsImage::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    // Looked up each time, because the element is not notified when the file is replaced or the resource
    // renamed.
    const ImageResource *image = ImageResource::imageElement(dataObject());
    const QPixmap picture =
        image ? pictureOf(QFileInfo(image->fullFilePath()), frame().size().toSize()) : QPixmap();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (!picture.isNull()) {
        painter->drawPixmap(frame(), picture, picture.rect());
        return;
    }
    painter->setPen(QPen(Qt::gray, 0));
    painter->drawRect(frame());
    painter->drawLine(frame().topLeft(), frame().bottomRight());
    painter->drawLine(frame().bottomLeft(), frame().topRight());
}

} // namespace Halvane::Corvex::Elements
