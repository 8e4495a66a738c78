// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/images/AddElementsWithResources.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString originOf(const DesignerObject *image)
{
    return image->getProperty(u"originalLocation")->valueString();
}

bool isSameImage(const DesignerObject *known, const DesignerObject *image)
{
    const QString digest =
        known ? Common::FileHelper::md5(static_cast<const ImageResource *>(known)->filePath()) : QString();
    return !digest.isEmpty() && digest == Common::FileHelper::md5(originOf(image));
}

} // namespace

AddElementsWithResources::AddElementsWithResources(Screen *screen, const QList<DesignerObject *> &elements,
                                                   const QList<DesignerObject *> &images,
                                                   const QList<DesignerObject *> &variables, bool selected,
                                                   UndoCommand *parent)
    : ModelCommand({}, selected, parent)
{
    Project *project = screen ? screen->project() : nullptr;
    const QList<DesignerObject *> all = elements + images + variables;
    const auto isImage = [](const DesignerObject *image) { return kindCast<ImageResource>(image); };
    if (!project || elements.isEmpty() || all.contains(nullptr)
        || !std::all_of(images.begin(), images.end(), isImage)) {
        refuse(Common::LocalizationHelper::coreString(u"There is nothing to add, or no list to add it to."_s),
               all);
        return;
    }
    if (elements.size() == 1) {
        setTitle(u"Add \"%1\" to \"%2\""_s, elements.first()->getIdName(), screen->getIdName());
    } else {
        setTitle(u"Add %1 objects to \"%2\""_s, QString::number(elements.size()), screen->getIdName());
    }
    for (DesignerObject *image : images) {
        if (isSameImage(project->imageResources()->getListItem(image->getIdName()), image)) {
            hold({image});
        } else {
            new AddImage(image, originOf(image), project, {}, this);
        }
    }
    for (DesignerObject *variable : variables) {
        const DesignerObject *known = project->variables()->getListItem(variable->getIdName());
        if (known && known->className() == variable->className()) {
            hold({variable});
        } else {
            new AddVariable(variable, project, this);
        }
    }
    for (DesignerObject *element : elements) {
        new AddObject(screen->elements(), element, selected, this);
    }
}

} // namespace Halvane::Corvex::Designer
