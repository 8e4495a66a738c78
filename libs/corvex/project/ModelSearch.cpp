// SPDX-License-Identifier: MIT
// The functions that value records need from the model.
#include "corvex/core/ItemList.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/private/ModelLookup.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/variables/ProjectVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

bool isOneOf(const DesignerObject *object, const QStringList &classNames)
{
    const QStringList own = object->classNames();
    return classNames.isEmpty()
           || std::any_of(classNames.begin(), classNames.end(),
                          [&own](const QString &name) { return own.contains(name); });
}

//! The lists that a link with that scope searches, seen from \a from.
QList<SharedProperty> listsInScope(const DesignerObject *from, const QString &scopeType)
{
    QList<SharedProperty> lists;
    if (scopeType != "Project"_L1 && from->screen()) {
        lists.append(from->screen()->elements());
    }
    if (scopeType != "Screen"_L1 && from->project()) {
        lists << from->project()->screens() << from->project()->variables()
              << from->project()->imageResources();
    }
    return lists;
}

DesignerObject *findByName(const SharedProperty &list, const QString &name)
{
    const auto *screen = kindCast<Screen>(list->parentObject());
    return screen ? static_cast<DesignerObject *>(screen->getElement(name)) : list->getListItem(name);
}

class ModelSearch final : public ModelLookup
{
public:
    ModelSearch() { provide(this); }

    //! The siblings of an element are all elements of its screen; those of other objects are in the same
    //! list.
    qsizetype siblingsNamed(const DesignerObject &object, const QString &name) const override
    {
        if (object.screen() && object.isKindOfClass(Element::kindName())) {
            const QList<DesignerObject *> bearers = object.screen()->elementIndex().named(name);
            return std::ranges::count_if(
                bearers, [&object](const DesignerObject *bearer) { return bearer != &object; });
        }
        const SharedProperty list = object.listProperty();
        return list ? list->listItemCount(name) - (list->itemList()->bears(&object, name) ? 1 : 0) : 0;
    }

    bool isInProject(const SharedProperty &property) const override
    {
        return property && property->parentObject() && property->parentObject()->project();
    }

    ProjectVariable *variable(const Project &project, const QString &name) const override
    {
        return kindCast<ProjectVariable>(project.variables()->getListItem(name));
    }

    DesignerObject *element(const Screen &screen, const QString &name) const override
    {
        return screen.getElement(name);
    }

    QList<DesignerObject *> targets(const ObjectLinkInfo &link, const DesignerObject &from,
                                    bool anyObject) const override
    {
        QList<DesignerObject *> found;
        for (const SharedProperty &list : listsInScope(&from, link.scopeType())) {
            const QList<DesignerObject *> candidates = anyObject
                                                           ? list->listItems(list->id() == "elements"_L1)
                                                           : QList{findByName(list, link.objectId())};
            for (DesignerObject *candidate : candidates) {
                if (candidate && isOneOf(candidate, link.filterType())) {
                    found.append(candidate);
                }
            }
        }
        return found;
    }
};

const ModelSearch modelSearch; // provides itself

} // namespace

} // namespace Halvane::Corvex::Designer
