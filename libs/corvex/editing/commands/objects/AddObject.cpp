// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/AddObject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/groups/GroupIndexes.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/GroupElement.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

AddObject::AddObject(const SharedProperty &list, DesignerObject *object, bool selected, UndoCommand *parent)
    : SortingCommand(list, selected, parent)
    , m_object(object)
{
    setupCommand(list);
}

AddObject::AddObject(const SharedProperty &list, const QString &className, const QString &name, bool selected,
                     UndoCommand *parent)
    : AddObject(list, make(list, className, name), selected, parent)
{ }

DesignerObject *AddObject::make(const SharedProperty &list, const QString &className, const QString &name)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    if (!list || !list->parentObject() || !factory || !factory->canCreateObject(className)) {
        return nullptr;
    }
    DesignerObject *object = factory->createObject(className);
    if (!object) {
        return nullptr;
    }
    object->setParent(nullptr);
    const DesignerObject *owner = list->parentObject();
    auto *screen = kindCast<Screen>(const_cast<DesignerObject *>(owner));
    screen = screen ? screen : owner->screen();
    const Project *project = owner->project();
    if (!name.isEmpty()) {
        object->setIdName(name);
    } else if (screen) {
        object->setIdName(screen->uniqueElementName(object->baseName()));
    } else if (project && (list == project->variables() || list == project->screens())) {
        object->setIdName(project->generateUniqueName(object->baseName()));
    } else {
        int number = 1;
        while (list->hasListItem(object->baseName() + QString::number(number))) {
            ++number;
        }
        object->setIdName(object->baseName() + QString::number(number));
    }
    return object;
}

void AddObject::setupCommand(const SharedProperty &list)
{
    if (!m_object || !list || !list->parentObject() || !list->isList()) {
        refuse(Common::LocalizationHelper::coreString(u"There is nothing to add, or no list to add it to."_s),
               {m_object});
        return;
    }
    const QString name = m_object->getIdName();
    setTitle(u"Add \"%1\" to \"%2\""_s, name, list->parentObject()->getIdName());
    addStep<InsertItemStep>(list, m_object);
    if (const GroupElement *group = GroupIndexes::groupOf(list)) {
        addChange(group->indexes(), GroupIndexes::replaced(valueOf(group->indexes()), {}, {name}));
    }
    setActiveItem(m_object);
    setSelection(isSelected() ? QList<DesignerObject *>{m_object} : QList<DesignerObject *>());
}

} // namespace Halvane::Corvex::Designer
