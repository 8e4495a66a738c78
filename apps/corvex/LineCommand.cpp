// SPDX-License-Identifier: MIT
#include "LineCommand.h"

#include "corvex/editing/commands/images/DeleteImage.h"
#include "corvex/editing/commands/objects/DeleteFilter.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/editing/commands/screens/DeleteScreen.h"
#include "corvex/editing/commands/variables/DeleteVariable.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/FilterElement.h"
#include "corvex/variables/ProjectVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

LineCommand::LineCommand()
    : ModelCommand({}, false, nullptr)
{ }

bool LineCommand::isValid() const
{
    for (int i = 0; i < childCount(); ++i) {
        if (!static_cast<const ModelCommand *>(child(i))->isValid()) {
            return false;
        }
    }
    return ModelCommand::isValid();
}

void LineCommand::describe()
{
    QStringList texts;
    for (int i = 0; i < childCount(); ++i) {
        texts.append(child(i)->text());
    }
    setText(texts.join(u", "_s));
}

ModelCommand *LineCommand::deletionOf(DesignerObject *item, UndoCommand *parent)
{
    if (kindCast<Screen>(item)) {
        return new DeleteScreen(item, parent);
    }
    if (kindCast<ProjectVariable>(item)) {
        return new DeleteVariable(item, parent);
    }
    if (kindCast<ImageResource>(item)) {
        return new DeleteImage(item, parent);
    }
    if (kindCast<FilterElement>(item)) {
        return new DeleteFilter(item->listProperty(), item, false, parent);
    }
    return kindCast<Element>(item) ? new DeleteObjectsAndCheckFilters({item}, item->screen(), parent)
                                   : nullptr;
}

QStringList LineCommand::partsOf(const QUndoCommand &command)
{
    QStringList parts;
    for (int i = 0; i < command.childCount(); ++i) {
        const QUndoCommand &child = *command.child(i);
        if (child.childCount() == 0 && !child.text().isEmpty()) {
            parts.append(child.text());
        }
        parts += partsOf(child);
    }
    return parts;
}

} // namespace Halvane::Corvex::Tool
