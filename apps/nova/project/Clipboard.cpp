// SPDX-License-Identifier: MIT
#include "project/Clipboard.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/clipboard/ObjectClip.h"
#include "corvex/editing/commands/images/AddImageFromData.h"
#include "corvex/project/Project.h"
#include "corvex/values/text/ValueConversion.h"

#include "project/Workspace.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;
using namespace Qt::StringLiterals;

bool Clipboard::copy(Workspace &workspace)
{
    QString error;
    const QString text = ObjectClip::copied(workspace.document().selection(), &error);
    if (text.isEmpty()) {
        emit workspace.refused(error);
        return false;
    }
    auto *data = new QMimeData;
    data->setData(ObjectClip::mimeType(), text.toUtf8());
    data->setText(text);
    QGuiApplication::clipboard()->setMimeData(data);
    return true;
}

void Clipboard::cut(Workspace &workspace)
{
    const QList<DesignerObject *> objects = workspace.document().selection();
    if (copy(workspace)) {
        workspace.push(Commands::deletionOf(objects));
    }
}

void Clipboard::paste(Workspace &workspace, const std::optional<QPointF> &middle)
{
    if (const QMimeData *data = QGuiApplication::clipboard()->mimeData()) {
        paste(workspace, *data, middle);
    }
}

void Clipboard::paste(Workspace &workspace, const QMimeData &data, const std::optional<QPointF> &middle)
{
    Screen *screen = workspace.screen();
    const QString text = data.hasFormat(ObjectClip::mimeType())
                             ? QString::fromUtf8(data.data(ObjectClip::mimeType()))
                             : data.text();
    if (ObjectClip::isClip(text)) {
        workspace.push(ObjectClip::pasteOf(text, workspace.project(), screen, middle));
        return;
    }
    const auto image = data.hasImage() ? data.imageData().value<QImage>() : QImage();
    if (image.isNull() || !screen) {
        emit workspace.refused(LocalizationHelper::coreString(
            u"The clipboard has no objects and no picture that can be pasted here."_s));
        return;
    }
    const QSizeF size = ValueConversion::toSize(screen->size()->valueString());
    const QPointF around = middle.value_or(QPointF(size.width() / 2, size.height() / 2));
    const QPoint corner = (around - QPointF(image.width() / 2.0, image.height() / 2.0)).toPoint();
    workspace.push(std::make_unique<AddImageFromData>(image, screen, corner));
}

} // namespace Halvane::Corvex::Nova
