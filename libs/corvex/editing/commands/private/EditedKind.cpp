// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/EditedKind.h"

#include "corvex/editing/commands/RenameProject.h"
#include "corvex/editing/commands/images/AddImage.h"
#include "corvex/editing/commands/images/DeleteImage.h"
#include "corvex/editing/commands/images/RenameImage.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/objects/DeleteFilter.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/editing/commands/screens/AddScreen.h"
#include "corvex/editing/commands/screens/DeleteScreen.h"
#include "corvex/editing/commands/screens/RenameScreen.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/editing/commands/variables/DeleteVariable.h"
#include "corvex/editing/commands/variables/RenameVariable.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

template<class Command>
ModelCommand *deletion(DesignerObject *object, UndoCommand *parent)
{
    return new Command(object, parent);
}

ModelCommand *filterDeletion(DesignerObject *filter, UndoCommand *parent)
{
    return new DeleteFilter(filter->listProperty(), filter, false, parent);
}

ModelCommand *elementDeletion(DesignerObject *element, UndoCommand *parent)
{
    return new DeleteObjectsAndCheckFilters({element}, element->screen(), parent);
}

template<class Command>
ModelCommand *renaming(DesignerObject *object, const QString &name)
{
    return new Command(object, name);
}

ModelCommand *projectRenaming(DesignerObject *project, const QString &name)
{
    return new RenameProject(static_cast<Project *>(project), name);
}

ModelCommand *elementRenaming(DesignerObject *element, const QString &name)
{
    IdentifierInfo info = element->getIdInfo();
    info.setName(name);
    return new ChangeProperty(element->idProperty(), info.toString(), false);
}

ModelCommand *screenAddition(DesignerObject *copy, DesignerObject *original, UndoCommand *parent)
{
    return new AddScreen(copy, original->project(), -1, parent);
}

ModelCommand *variableAddition(DesignerObject *copy, DesignerObject *original, UndoCommand *parent)
{
    return new AddVariable(copy, original->project(), parent);
}

ModelCommand *imageAddition(DesignerObject *copy, DesignerObject *original, UndoCommand *parent)
{
    const QString file = static_cast<const ImageResource *>(original)->filePath();
    return new AddImage(copy, file, original->project(), {}, parent);
}

ModelCommand *elementAddition(DesignerObject *copy, DesignerObject *original, UndoCommand *parent)
{
    return new AddObject(original->listProperty(), copy, true, parent);
}

// The first matching row counts: a filter is also an element.
constexpr std::array kinds{
    EditedKind{"Project"_L1, nullptr, &projectRenaming, nullptr},
    EditedKind{"Screen"_L1, &deletion<DeleteScreen>, &renaming<RenameScreen>, &screenAddition},
    EditedKind{"ProjectVariable"_L1, &deletion<DeleteVariable>, &renaming<RenameVariable>, &variableAddition},
    EditedKind{"ImageResource"_L1, &deletion<DeleteImage>, &renaming<RenameImage>, &imageAddition},
    EditedKind{"FilterElement"_L1, &filterDeletion, &elementRenaming, &elementAddition},
    EditedKind{"Element"_L1, &elementDeletion, &elementRenaming, &elementAddition},
};

} // namespace

const EditedKind *EditedKind::of(const DesignerObject *object)
{
    const auto kind = std::ranges::find_if(
        kinds, [object](const EditedKind &row) { return object && object->isKindOfClass(row.className); });
    return kind == kinds.end() ? nullptr : &*kind;
}

} // namespace Halvane::Corvex::Designer
