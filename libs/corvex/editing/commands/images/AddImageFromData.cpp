// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/images/AddImageFromData.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/images/ImageNames.h"
#include "corvex/editing/commands/private/FileStep.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImage>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

AddImageFromData::AddImageFromData(const QImage &image, Project *project, UndoCommand *parent)
    : ModelCommand(project ? project->imageResources() : SharedProperty(), false, parent)
{
    setupCommand(image, project, nullptr, {});
}

AddImageFromData::AddImageFromData(const QImage &image, Screen *screen, const QPointF &position,
                                   UndoCommand *parent)
    : ModelCommand(screen ? screen->elements() : SharedProperty(), true, parent)
{
    setupCommand(image, screen ? screen->project() : nullptr, screen, position);
}

void AddImageFromData::setupCommand(const QImage &image, Project *project, Screen *screen,
                                    const QPointF &position)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!project || project->imagesPath().isEmpty() || !image.save(&buffer, "PNG")) {
        refuse(Common::LocalizationHelper::coreString(
            u"There is no image to add, or the project has no folder yet. Save it first."_s));
        return;
    }
    ImageNames names(project);
    const QString digest =
        QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex());
    m_existingName = names.withContents(digest, u"png"_s);
    QString name = m_existingName;
    DesignerObject *resource = nullptr;
    if (name.isEmpty()) {
        name = names.freeName(u"Image Resource.png"_s);
        resource = DesignerFactory::instance()->createObject(ImageResource::kindName());
        resource->setParent(nullptr);
        resource->setIdName(name);
        addStep<PlaceFileStep>(project, name, bytes);
        addStep<InsertItemStep>(project->imageResources(), resource);
        setActiveItem(resource);
    } else if (!screen) {
        refuse({});
    }
    setTitle(u"Add \"%1\" to \"%2\""_s, name, screen ? screen->getIdName() : project->getIdName());
    DesignerObject *element =
        screen ? ImageResource::createImageElement(name, image.size(), position) : nullptr;
    if (element) {
        element->setIdName(screen->uniqueElementName(element->baseName()));
        addStep<InsertItemStep>(screen->elements(), element);
        setActiveItem(element);
        setSelection({element});
    } else if (screen) {
        refuse(Common::LocalizationHelper::coreString(
            u"No plug-in provides an element class that shows images."_s));
    }
}

QString AddImageFromData::errorString() const
{
    return m_existingName.isEmpty() ? ModelCommand::errorString()
                                    : Common::LocalizationHelper::coreString(
                                          u"The image data is already added to the project as \"%1\"."_s)
                                          .arg(m_existingName);
}

} // namespace Halvane::Corvex::Designer
