// SPDX-License-Identifier: MIT
#include "panels/ImagesPanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/images/ImageNames.h"
#include "corvex/editing/commands/images/ReplaceImage.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/Theme.h"
#include "corvex/widgets/Thumbnails.h"

#include "project/Workspace.h"

#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr int pictureEdge = 48;

const ImageResource *imageOf(const QModelIndex &index)
{
    return kindCast<ImageResource>(index.data(ObjectTreeModel::ObjectRole).value<DesignerObject *>());
}

//! A picture with the name and the size beside it.
class ImageDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem & /*option*/, const QModelIndex & /*index*/) const override
    {
        return {2 * pictureEdge, pictureEdge + 2 * Theme::gap};
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const ImageResource *image = imageOf(index);
        if (!image) {
            return;
        }
        option->icon = Thumbnails::of(*image, pictureEdge, option->widget->devicePixelRatioF());
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = QSize(pictureEdge, pictureEdge);
        const QSize size = Thumbnails::sizeOf(*image);
        if (size.isValid()) {
            option->text += u"\n%1 × %2"_s.arg(size.width()).arg(size.height());
            option->features |= QStyleOptionViewItem::WrapText;
        }
    }
};

QString imageFilter()
{
    QStringList patterns;
    for (const QString &extension : Common::FileHelper::validImageExtensions()) {
        patterns.append(u"*."_s + extension);
    }
    return LocalizationHelper::coreString(u"Images (%1)"_s).arg(patterns.join(u' '));
}

bool hasFiles(const QMimeData *data)
{
    return data->hasUrls() && data->urls().constFirst().isLocalFile();
}

} // namespace

ImagesPanel::ImagesPanel(Workspace &workspace, QWidget *parent)
    : QListView(parent)
    , m_workspace(workspace)
{
    setFrameShape(NoFrame);
    setModel(&workspace.tree());
    setItemDelegate(new ImageDelegate(this));
    setEditTriggers(EditKeyPressed);
    setDragDropMode(DragDrop);
    setUniformItemSizes(true);
    setAccessibleName(LocalizationHelper::coreString(u"Images"_s));
    connect(&workspace.tree(), &QAbstractItemModel::modelReset, this, &ImagesPanel::reset);
    connect(this, &QListView::clicked, this, [this](const QModelIndex &index) {
        if (DesignerObject *image = m_workspace.tree().object(index)) {
            m_workspace.document().select({image});
        }
    });
    reset();
}

void ImagesPanel::reset()
{
    setRootIndex(m_workspace.tree().indexOf(m_workspace.project().imageResources()));
}

//! Adds the files in one step of the history. Files that the project has already are skipped.
void ImagesPanel::addFiles(const QList<QUrl> &urls)
{
    ProjectDocument &document = m_workspace.document();
    Project &project = m_workspace.project();
    if (!document.beginGesture(LocalizationHelper::coreString(u"Add images"_s))) {
        m_workspace.reportFailure();
        return;
    }
    ImageNames names(&project);
    QStringList notes;
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        const QFileInfo file(path);
        const QString digest = Common::FileHelper::md5(path);
        const QString known = names.withContents(digest, file.suffix().toLower());
        if (!known.isEmpty()) {
            notes.append(
                LocalizationHelper::coreString(u"The project already has this image: \"%1\"."_s).arg(known));
            continue;
        }
        const QString name = names.freeName(file.fileName());
        DesignerObject *image = DesignerFactory::instance()->createUnowned(ImageResource::kindName());
        image->setIdName(name);
        auto command = std::make_unique<AddImage>(image, path, &project);
        const QString error = command->isValid() ? QString()
                              : command->errorString().isEmpty()
                                  ? LocalizationHelper::coreString(u"This is not an image."_s)
                                  : command->errorString();
        if (!error.isEmpty()) {
            notes.append(u"%1: %2"_s.arg(file.fileName(), error));
        } else if (document.push(command.release())) {
            names.add(name, digest);
        } else {
            notes.append(u"%1: %2"_s.arg(file.fileName(), document.errorString()));
        }
    }
    document.commitGesture();
    if (!notes.isEmpty()) {
        emit m_workspace.noted(notes);
    }
}

void ImagesPanel::choose()
{
    QList<QUrl> urls;
    for (const QString &path : QFileDialog::getOpenFileNames(
             this, LocalizationHelper::coreString(u"Add images"_s), {}, imageFilter())) {
        urls.append(QUrl::fromLocalFile(path));
    }
    if (!urls.isEmpty()) {
        addFiles(urls);
    }
}

void ImagesPanel::dragEnterEvent(QDragEnterEvent *event)
{
    if (hasFiles(event->mimeData())) {
        event->acceptProposedAction();
    } else {
        QListView::dragEnterEvent(event);
    }
}

void ImagesPanel::dragMoveEvent(QDragMoveEvent *event)
{
    if (hasFiles(event->mimeData())) {
        event->acceptProposedAction();
    } else {
        QListView::dragMoveEvent(event);
    }
}

void ImagesPanel::dropEvent(QDropEvent *event)
{
    if (hasFiles(event->mimeData())) {
        event->acceptProposedAction();
        addFiles(event->mimeData()->urls());
    } else {
        QListView::dropEvent(event);
    }
}

void ImagesPanel::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    menu.addAction(LocalizationHelper::coreString(u"Add images…"_s), this, &ImagesPanel::choose);
    DesignerObject *image = m_workspace.tree().object(currentIndex());
    QAction *replace =
        menu.addAction(LocalizationHelper::coreString(u"Replace the file…"_s), this, [this, image] {
            const QString path = QFileDialog::getOpenFileName(
                this, LocalizationHelper::coreString(u"Replace the file"_s), {}, imageFilter());
            if (!path.isEmpty()) {
                // A file of another format needs another name.
                const QFileInfo file(path);
                const bool keepsName =
                    QFileInfo(image->getIdName()).suffix().compare(file.suffix(), Qt::CaseInsensitive) == 0;
                m_workspace.push(std::make_unique<ReplaceImage>(
                    image, path, keepsName ? image->getIdName() : file.fileName()));
            }
        });
    replace->setEnabled(image);
    menu.exec(event->globalPos());
}

} // namespace Halvane::Corvex::Nova
