// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/images/ReplaceImage.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/private/FileStep.h"
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

ReplaceImage::ReplaceImage(DesignerObject *image, const QString &newFile, const QString &name,
                           UndoCommand *parent)
    : ModelCommand(image ? image->listProperty() : SharedProperty(), true, parent)
{
    Project *project = image ? image->project() : nullptr;
    if (!kindCast<ImageResource>(image) || !project || project->imagesPath().isEmpty()) {
        refuse(LocalizationHelper::coreString(u"There is no image to replace."_s));
        return;
    }
    const QString oldName = image->getIdName();
    setTitle(u"Replace Image Resource \"%1\""_s, oldName);
    setSelection({image});
    QString error = FileNameRules::imageNameError(name);
    if (error.isEmpty()) {
        error = FileNameRules::imageFileError(newFile, name);
    }
    if (error.isEmpty() && name != oldName && project->imageResources()->hasListItem(name)) {
        error =
            LocalizationHelper::coreString(u"An image resource with name \"%1\" already exists."_s).arg(name);
    }
    if (!error.isEmpty()) {
        refuse(error);
        return;
    }
    if (name == oldName) {
        addStep<ReplaceFileStep>(project, name, newFile);
    } else {
        addChanges(ReferenceChanges::renamed(image, name, pending()));
        addStep<PlaceFileStep>(project, name, newFile);
        addStep<LeaveFileStep>(project, oldName);
        IdentifierInfo info = image->getIdInfo();
        info.setName(name);
        addValueStep(image->idProperty(), info.toString());
        addStep<SortListStep>(image->listProperty());
    }
}

} // namespace Halvane::Corvex::Designer
