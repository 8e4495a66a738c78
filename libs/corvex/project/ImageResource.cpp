// SPDX-License-Identifier: MIT
#include "corvex/project/ImageResource.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/PropertyTable.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/core/properties/LinkProperty.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/project/private/ImageAdder.h"
#include "corvex/values/text/ValueConversion.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

bool nameValidator(const DesignerProperty *property, QString &error)
{
    const DesignerObject *image = property->parentObject();
    error = FileNameRules::imageNameError(image->getIdName());
    if (error.isEmpty() && !image->isUnique(image)) {
        error = LocalizationHelper::coreString(u"An image resource with name \"%1\" already exists."_s)
                    .arg(image->getIdName());
    }
    return error.isEmpty();
}

} // namespace

QString ImageResource::baseName() const
{
    return u"imageResource"_s;
}

QString ImageResource::displayName() const
{
    return LocalizationHelper::coreString(u"Image Resource"_s);
}

bool ImageResource::initializeProperties()
{
    static const PropertyTable table{
        row<IdentifierProperty>("id", "Name", IdentifierInfo())
            .description("The file name of the image, with its extension.")
            .rank(0)
            .validator(nameValidator)
            .allowInvalid(),
        row<StringProperty>("originalLocation", "Original Location", QString())
            .description("The path of the file from which the image was added.")
            .flags(4 | 8)
            .rank(1)
            .editor("OriginalLocationEditor")
            .allowInvalid(),
        row<StringProperty>("imageFile", "Image File", QString())
            .description("The image file in the folder of the project.")
            .flags(0)
            .rank(2)
            .validator(imageFileValidator)
            .allowInvalid(),
    };
    if (!FileObject::initializeProperties() || !addProperties(table)) {
        return false;
    }
    registerIdentifier(u"Project"_s);
    m_originalLocation = getProperty(u"originalLocation");
    m_imageFile = getProperty(u"imageFile");
    return true;
}

QString ImageResource::createFileName() const
{
    return getIdName();
}

bool ImageResource::createFile(const QString &path)
{
    QDir().mkdir(path);
    const QString target = createFullFilePath(path, {}, createFileName());
    if (target.isEmpty()) {
        return finish(QFileInfo(path).isDir()
                          ? FileNameRules::imageNameError(getIdName())
                          : LocalizationHelper::coreString(u"The folder \"%1\" does not exist."_s).arg(path));
    }
    QFile original(m_originalLocation->valueString());
    if (!original.copy(target)) {
        return finish(LocalizationHelper::coreString(u"The file \"%1\" cannot be copied to \"%2\": %3"_s)
                          .arg(original.fileName(), target, original.errorString()));
    }
    setFileFields(path, {}, createFileName());
    return finish({});
}

bool ImageResource::loadFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return finish(LocalizationHelper::coreString(u"The file \"%1\" does not exist."_s).arg(path));
    }
    setFileFields(info.absolutePath(), {}, info.fileName());
    return finish({});
}

bool ImageResource::saveFile()
{
    return finish(QFileInfo(filePath()).isFile()
                      ? QString()
                      : LocalizationHelper::coreString(u"The file \"%1\" does not exist."_s)
                            .arg(m_imageFile->valueString()));
}

bool ImageResource::renameFile(const QString &oldName, const QString &newName)
{
    const QString from = createFullFilePath(parentPath(), {}, oldName);
    const QString to = createFullFilePath(parentPath(), {}, newName);
    QFile file(from);
    if (to.isEmpty() || !file.rename(to)) {
        return finish(LocalizationHelper::coreString(u"The file \"%1\" cannot be renamed to \"%2\": %3"_s)
                          .arg(oldName, newName, file.errorString()));
    }
    setFileFields(parentPath(), {}, newName);
    return finish({});
}

void ImageResource::setProject(Project *project)
{
    FileObject::setProject(project);
    updateFileFields();
}

void ImageResource::updateFileFields()
{
    const QString folder = project() ? project()->imagesPath() : QString();
    if (!folder.isEmpty()) {
        setFileFields(folder, {}, createFileName());
    }
}

void ImageResource::afterFileFieldsChanged()
{
    changePropertyValue(m_imageFile, fullFilePath());
    // The path may be unchanged while the file there is another one.
    validate();
}

void ImageResource::afterPropertyChanged(const DesignerProperty *property, const QString &)
{
    if (property == idProperty().data()) {
        updateFileFields();
    }
    validate();
}

bool ImageResource::imageFileValidator(const DesignerProperty *property, QString &error)
{
    const auto *image = static_cast<const ImageResource *>(property->parentObject());
    if (!QFileInfo(image->filePath()).isFile()) {
        error = LocalizationHelper::coreString(u"The file \"%1\" does not exist."_s).arg(image->getIdName());
    } else if (!image->isImage()) {
        error = FileNameRules::imageFileError(image->filePath(), image->getIdName());
    }
    return error.isEmpty();
}

bool ImageResource::isImage() const
{
    const QFileInfo info(filePath());
    if (m_inspection.path != info.filePath() || m_inspection.size != info.size()
        || m_inspection.time != info.lastModified()) {
        m_inspection = {info.filePath(), info.size(), info.lastModified(),
                        Common::FileHelper::isValidImage(info.filePath())};
    }
    return m_inspection.isImage;
}

void ImageResource::linkElement(DesignerObject *element)
{
    if (!element || m_linkedElements.contains(element)) {
        return;
    }
    m_linkedElements.insert(element);
    connect(element, &QObject::destroyed, this, [this, element] { unlinkElement(element); });
    emit linkedElementsChanged();
}

void ImageResource::unlinkElement(DesignerObject *element)
{
    if (m_linkedElements.remove(element)) {
        disconnect(element, &QObject::destroyed, this, nullptr);
        emit linkedElementsChanged();
    }
}

ImageResource *ImageResource::imageElement(const DesignerObject *element)
{
    const SharedProperty source = element ? element->getProperty(u"source") : SharedProperty();
    const auto *link = propertyCast<LinkProperty>(source);
    return link ? link->connectLinkTo<ImageResource>() : nullptr;
}

DesignerObject *ImageResource::createImageElement(const QString &name, const QSizeF &size,
                                                  const QPointF &position)
{
    DesignerFactory *factory = DesignerFactory::instance();
    const QString className = u"Image"_s;
    DesignerObject *element =
        factory && factory->canCreateObject(className) ? factory->createObject(className) : nullptr;
    if (!element) {
        return nullptr;
    }
    element->setParent(nullptr);
    // The image is found only after the element was added to a screen.
    element->setDisableValidation(true);
    const ObjectLinkInfo source(name, u"Project"_s, u"ImageResource"_s);
    element->changePropertyValue(element->getProperty(u"source"), source.toString());
    element->changePropertyValue(element->getProperty(u"size"), ValueConversion::toString(size));
    element->changePropertyValue(element->getProperty(u"position"), ValueConversion::toString(position));
    element->setDisableValidation(false);
    return element;
}

bool ImageResource::addImagesFromUrls(const QList<QUrl> &urls, Screen *screen, const QPointF &position,
                                      QWidget *parentWidget)
{
    return screen && screen->project() && ImageAdder::add
           && ImageAdder::add(urls, screen, position, parentWidget);
}

} // namespace Halvane::Corvex::Designer
