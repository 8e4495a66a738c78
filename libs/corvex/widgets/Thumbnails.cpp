// SPDX-License-Identifier: MIT
#include "corvex/widgets/Thumbnails.h"

#include "corvex/common/PictureFile.h"
#include "corvex/project/ImageResource.h"

#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QPixmapCache>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QPixmap Thumbnails::of(const ImageResource &image, int edge, qreal devicePixelRatio)
{
    const QFileInfo file(image.filePath());
    const int pixels = qRound(edge * devicePixelRatio);
    const QString key =
        u"corvex %1 %2 %3 %4"_s.arg(file.filePath(), QString::number(file.lastModified().toMSecsSinceEpoch()),
                                    QString::number(file.size()), QString::number(pixels));
    QPixmap thumbnail;
    if (QPixmapCache::find(key, &thumbnail)) {
        return thumbnail;
    }
    if (file.isFile() && Common::PictureFile::problem(file.filePath()).isEmpty()) {
        QImageReader reader(file.filePath());
        const QSize size = reader.size();
        const bool isTooLarge = size.width() > edge || size.height() > edge;
        if (isTooLarge || reader.format().startsWith("svg")) {
            const QSize shown = isTooLarge ? size.scaled(edge, edge, Qt::KeepAspectRatio) : size;
            reader.setScaledSize((QSizeF(shown) * devicePixelRatio).toSize().expandedTo({1, 1}));
        }
        thumbnail = QPixmap::fromImageReader(&reader);
        if (reader.scaledSize().isValid()) {
            thumbnail.setDevicePixelRatio(devicePixelRatio);
        }
    }
    QPixmapCache::insert(key, thumbnail);
    return thumbnail;
}

QSize Thumbnails::sizeOf(const ImageResource &image)
{
    return QImageReader(image.filePath()).size();
}

} // namespace Halvane::Corvex::Designer
