// SPDX-License-Identifier: MIT
// Images that the user drops on a screen or selects for it.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/EditingDialogs.h"
#include "corvex/editing/commands/images/AddImagesAndElements.h"
#include "corvex/editing/commands/images/ImageNames.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/project/private/ImageAdder.h"

#include <QFileInfo>
#include <QImageReader>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::FileHelper;
using Common::LocalizationHelper;

bool isImportable(const QString &path)
{
    return FileHelper::validImageExtensions().contains(QFileInfo(path).suffix().toLower())
           && FileHelper::isValidImage(path)
           && FileNameRules::imageNameError(QFileInfo(path).fileName()).isEmpty();
}

void warn(QWidget *parent, const QStringList &names)
{
    const bool isOne = names.size() == 1;
    const QString text = LocalizationHelper::coreString(
        isOne ? u"The following image is invalid or its extension does not match the image format: \n    %1"_s
              : u"The following images are invalid or their extensions do not match the image format: \n    "
                "%1"_s);
    EditingDialogs::instance()->warn(parent,
                                     LocalizationHelper::coreString(isOne ? u"Add Image"_s : u"Add Images"_s),
                                     text.arg(names.join(u"\n     "_s)));
}

QStringList localFiles(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls) {
        if (url.isLocalFile()) {
            paths.append(url.toLocalFile());
        }
    }
    std::stable_sort(paths.begin(), paths.end(), [](const QString &left, const QString &right) {
        return Common::TextHelper::fileNameLess(QFileInfo(left).fileName(), QFileInfo(right).fileName());
    });
    return paths;
}

ImageResource *makeResource(const QString &name)
{
    DesignerObject *image = DesignerFactory::instance()->createObject(ImageResource::kindName());
    image->setParent(nullptr);
    image->setIdName(name);
    return static_cast<ImageResource *>(image);
}

//! Returns false, after a message to the user, if the command fails.
bool push(AddImagesAndElements *command, Project *project, QWidget *parentWidget)
{
    UndoStack *stack = project->undoStack();
    if (stack->push(command)) {
        return true;
    }
    EditingDialogs::instance()->warn(parentWidget, LocalizationHelper::coreString(u"Add Images"_s),
                                     stack->errorString());
    return false;
}

bool addImages(const QList<QUrl> &urls, Screen *screen, const QPointF &position, QWidget *parentWidget)
{
    Project *project = screen->project();
    ImageNames names(project);
    QStringList refused;
    QMap<ImageResource *, QString> images;
    QList<DesignerObject *> elements;
    int number = 1; // of the next element
    for (const QString &path : localFiles(urls)) {
        const QFileInfo info(path);
        if (!isImportable(path)) {
            refused.append(info.fileName());
            continue;
        }
        const QString digest = FileHelper::md5(path);
        QString name = names.withContents(digest, info.suffix().toLower());
        if (name.isEmpty()) {
            name = names.freeName(info.fileName());
            names.add(name, digest);
            images.insert(makeResource(name), path);
        }
        DesignerObject *element =
            ImageResource::createImageElement(name, QImageReader(path).size(), position);
        if (element) {
            QString elementName;
            do {
                elementName = element->baseName() + QString::number(number++);
            } while (!screen->isFreeName(elementName));
            element->setIdName(elementName);
            elements.append(element);
        }
    }
    if (!refused.isEmpty()) {
        warn(parentWidget, refused);
    }
    if (images.isEmpty() && elements.isEmpty()) {
        return false;
    }
    return push(new AddImagesAndElements(images, elements, screen), project, parentWidget);
}

[[maybe_unused]] const bool isProvided = (ImageAdder::add = &addImages) != nullptr;

} // namespace

} // namespace Halvane::Corvex::Designer
