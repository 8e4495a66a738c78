// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/images/RenameImage.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/private/FileStep.h"
#include "corvex/editing/references/ReferenceChanges.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/FileNameRules.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

RenameImage::RenameImage(DesignerObject *image, const QString &newName, UndoCommand *parent)
    : ModelCommand(image ? image->idProperty() : SharedProperty(), true, parent)
{
    const auto *resource = kindCast<ImageResource>(image);
    if (!resource || !image->project() || image->project()->imagesPath().isEmpty()) {
        refuse(LocalizationHelper::coreString(u"There is nothing to rename."_s));
        return;
    }
    const QString oldName = image->getIdName();
    setTitle(u"Rename Image Resource \"%1\""_s, oldName);
    QString error = FileNameRules::imageNameError(newName);
    if (error.isEmpty() && newName != oldName && image->project()->imageResources()->hasListItem(newName)) {
        error = LocalizationHelper::coreString(u"An image resource with name \"%1\" already exists."_s)
                    .arg(newName);
    }
    // An image whose file is missing or damaged must keep the format of its name.
    if (error.isEmpty() && !FileNameRules::haveSameFormat(oldName, newName)) {
        error = FileNameRules::imageFileError(resource->filePath(), newName);
    }
    if (!error.isEmpty() || newName == oldName) {
        refuse(error);
        return;
    }
    addChanges(ReferenceChanges::renamed(image, newName, pending()));
    addStep<RenameFileStep>(image->project(), oldName, newName);
    IdentifierInfo info = image->getIdInfo();
    info.setName(newName);
    addValueStep(image->idProperty(), info.toString());
    addStep<SortListStep>(image->listProperty());
}

} // namespace Halvane::Corvex::Designer
