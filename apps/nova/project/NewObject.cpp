// SPDX-License-Identifier: MIT
#include "project/NewObject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/objects/AddObject.h"
#include "corvex/editing/commands/screens/AddScreen.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/project/Project.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/variables/ProjectVariable.h"

#include "project/NewElement.h"
#include "project/Workspace.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;

DesignerObject *NewObject::add(Workspace &workspace, const QString &className)
{
    Project &project = workspace.project();
    std::unique_ptr<DesignerObject> object(DesignerFactory::instance()->createUnowned(className));
    DesignerObject *added = object.get();
    std::unique_ptr<UndoCommand> command;
    if (object && object->isKindOfClass(Element::kindName()) && workspace.screen()) {
        const QSizeF size = ValueConversion::toSize(workspace.screen()->size()->valueString());
        std::unique_ptr<AddObject> adding =
            NewElement::command(*workspace.screen(), className, QPointF(size.width(), size.height()) / 2);
        added = adding->object();
        command = std::move(adding);
    } else if (object && object->isKindOfClass(ProjectVariable::kindName())) {
        object->setIdName(project.generateUniqueName(object->baseName()));
        command = std::make_unique<AddVariable>(object.release(), &project);
    } else if (object && object->isKindOfClass(Screen::kindName())) {
        object->setIdName(project.generateUniqueName(object->baseName()));
        command = std::make_unique<AddScreen>(object.release(), &project, -1);
    } else {
        emit workspace.refused(
            Common::LocalizationHelper::coreString(u"Nothing of the class \"%1\" can be added here."_s)
                .arg(className));
        return nullptr;
    }
    return workspace.push(std::move(command)) ? added : nullptr;
}

} // namespace Halvane::Corvex::Nova
