// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/images/AddImage.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/private/FileStep.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"
#include "corvex/values/records/ObjectLinkInfo.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

AddImage::AddImage(DesignerObject *image, const QString &filePath, Project *project,
                   const QList<DesignerObject *> &users, UndoCommand *parent)
    : SortingCommand(project ? project->imageResources() : SharedProperty(), false, parent)
{
    const auto *resource = kindCast<ImageResource>(image);
    if (!project || !resource || project->imagesPath().isEmpty()) {
        refuse(Common::LocalizationHelper::coreString(
                   u"There is no image to add, or the project has no folder yet. Save it first."_s),
               {image});
        return;
    }
    const QString name = image->getIdName();
    QString error = FileNameRules::imageNameError(name);
    if (error.isEmpty()) {
        error = FileNameRules::imageFileError(filePath, name);
    }
    if (!error.isEmpty()) {
        refuse(error, {image});
        return;
    }
    setTitle(u"Add Image Resource \"%1\""_s, name);
    addStep<PlaceFileStep>(project, name, filePath);
    if (resource->originalLocation()->valueString().isEmpty()) {
        addStep<SetValueStep>(ValueChange{resource->originalLocation(), {}, filePath});
    }
    addStep<InsertItemStep>(project->imageResources(), image);
    const QString link = ObjectLinkInfo(name, u"Project"_s, u"ImageResource"_s).toString();
    for (const DesignerObject *user : users) {
        const bool isOfOthers = !user || (user->project() && user->project() != project);
        addChange(isOfOthers ? SharedProperty() : user->getProperty(u"source"), link);
    }
}

} // namespace Halvane::Corvex::Designer
