// SPDX-License-Identifier: MIT
// The functions of the value records that search the model. The records themselves do not know it.
#include "corvex/core/ItemList.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/GeneralDataInfo.h"
#include "corvex/values/records/DependentInfo.h"
#include "corvex/values/records/IdentifierInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/variables/ProjectVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The number of siblings of \a object with the name \a name, excluding the object. The siblings of an
//! element are all elements of its screen; those of other objects are in the same list.
qsizetype siblingsNamed(const DesignerObject *object, const QString &name)
{
    const bool isElement = object->isKindOfClass(Element::kindName());
    if (isElement && object->screen()) {
        const QList<DesignerObject *> namesakes = object->screen()->elementIndex().named(name);
        return std::count_if(namesakes.begin(), namesakes.end(),
                             [object](const DesignerObject *namesake) { return namesake != object; });
    }
    const SharedProperty list = object->listProperty();
    return list ? list->listItemCount(name) - (list->itemList()->bears(object, name) ? 1 : 0) : 0;
}

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

} // namespace

bool IdentifierInfo::isUnique(const DesignerObject *object) const
{
    return !object || siblingsNamed(object, m_name) == 0;
}

QString IdentifierInfo::generateUniqueId(const DesignerObject *object, const QString &base, int number)
{
    QString name = generateId(base, number);
    while (object && !name.isEmpty() && siblingsNamed(object, name) > 0) {
        name = generateId(base, ++number);
    }
    return name;
}

void DependentInfo::updateProperties(const QString &text)
{
    bool isIdentifier = false;
    const IdentifierInfo info(text, &isIdentifier);
    m_objectId = isIdentifier ? info.name() : text;
    m_properties.removeIf([](const SharedProperty &property) {
        return !property || !property->parentObject() || !property->parentObject()->project();
    });
}

ProjectVariable *GeneralDataInfo::toVariable(Project *project) const
{
    const bool isVariable = project && valueType() == VariableValue;
    return isVariable ? kindCast<ProjectVariable>(project->variables()->getListItem(value())) : nullptr;
}

DesignerObject *GeneralDataInfo::toProcess(Screen *screen) const
{
    return screen && valueType() == ObjectValue ? screen->getElement(objectName().section(u'.', -1))
                                                : nullptr;
}

QList<DesignerObject *> ObjectLinkInfo::findLinks(const DesignerObject *from, bool anyObject) const
{
    QList<DesignerObject *> found;
    if (!from) {
        return found;
    }
    for (const SharedProperty &list : listsInScope(from, m_scopeType)) {
        const QList<DesignerObject *> candidates =
            anyObject ? list->listItems(list->id() == "elements"_L1) : QList{findByName(list, m_objectId)};
        for (DesignerObject *candidate : candidates) {
            if (candidate && isOneOf(candidate, m_filterType)) {
                found.append(candidate);
            }
        }
    }
    return found;
}

} // namespace Halvane::Corvex::Designer
