// SPDX-License-Identifier: MIT
#include "corvex/editing/words/ProjectPath.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

// Much longer than any name in a project; a path contains one name per level.
constexpr qsizetype longestName = 4096;

DesignerObject *childNamed(const DesignerObject &owner, const QString &name)
{
    for (const SharedProperty &property : owner.properties()) {
        DesignerObject *child = property->isList() ? property->getListItem(name) : property->objectValue();
        if (child && (property->isList() || property->id() == name || child->getIdName() == name)) {
            return child;
        }
    }
    return nullptr;
}

//! How far a path was followed.
struct Walk
{
    DesignerObject *owner; //!< the last object found
    qsizetype known = 0;   //!< the length of the part found, including the "." after the owner
};

ProjectPlace findBelow(DesignerObject &owner, const QString &path, qsizetype from, Walk &walk)
{
    if (from >= walk.known) {
        walk = {&owner, from};
    }
    for (qsizetype end = path.indexOf(u'.', from); end >= 0 && end - from < longestName;
         end = path.indexOf(u'.', end + 1)) {
        if (DesignerObject *child = childNamed(owner, path.sliced(from, end - from))) {
            const ProjectPlace place = findBelow(*child, path, end + 1, walk);
            if (place.object) {
                return place;
            }
        }
    }
    const QString rest = path.sliced(from);
    if (DesignerObject *child = childNamed(owner, rest)) {
        return {child, {}};
    }
    const SharedProperty property = owner.getProperty(rest);
    return {property ? &owner : nullptr, property};
}

ProjectPlace findFrom(Project &project, const QString &path, Walk &walk)
{
    const ProjectPlace place = findBelow(project, path, 0, walk);
    const QString name = project.getIdName();
    if (place.object || !path.startsWith(name)) {
        return place;
    }
    if (path == name) {
        return {&project, {}};
    }
    return path.at(name.size()) == u'.' ? findBelow(project, path, name.size() + 1, walk) : place;
}

//! How specifically the list describes the item; -1 if the list does not accept it.
qsizetype closeness(const SharedProperty &list, const DesignerObject &item)
{
    qsizetype closest = list->isList() && list->objectFilters().isEmpty() ? 0 : -1;
    if (list->isList()) {
        for (const QString &className : list->objectFilters()) {
            closest = std::max(closest, item.classNames().indexOf(className));
        }
    }
    return closest;
}

//! The names that can follow \a owner in a path.
QStringList namesBelow(const DesignerObject &owner)
{
    QStringList names;
    for (const SharedProperty &property : owner.properties()) {
        names.append(property->id());
        for (const DesignerObject *item : property->listItems()) {
            names.append(item->getIdName());
        }
    }
    return names;
}

//! An element with exactly that name, or else with a similar one, or else null.
const DesignerObject *nearestElement(const Project &project, const QString &name)
{
    QStringList names;
    const QList<DesignerObject *> screens = project.screens()->listItems();
    for (const DesignerObject *screen : screens) {
        names += static_cast<const Screen *>(screen)->getElementNames();
    }
    const QString nearest = names.contains(name) ? name : Suggestion::nearest(name, names);
    for (const DesignerObject *screen : screens) {
        if (const DesignerObject *element = static_cast<const Screen *>(screen)->getElement(nearest)) {
            return element;
        }
    }
    return nullptr;
}

} // namespace

ProjectPlace ProjectPath::find(Project &project, const QString &path)
{
    Walk walk{&project};
    return findFrom(project, path, walk);
}

SharedProperty ProjectPath::listFor(Project &project, const QString &path, const DesignerObject &item)
{
    const ProjectPlace place = find(project, path);
    if (!place.object || place.property) {
        return place.property && place.property->isList() ? place.property : SharedProperty();
    }
    return listFor(*place.object, item);
}

SharedProperty ProjectPath::listFor(const DesignerObject &owner, const DesignerObject &item)
{
    const auto list =
        std::ranges::max_element(owner.properties(), {}, [&item](const SharedProperty &property) {
            return closeness(property, item);
        });
    return closeness(*list, item) >= 0 ? *list : SharedProperty();
}

bool ProjectPath::isName(const Project &project, const QString &name)
{
    return childNamed(project, name)
           || std::ranges::any_of(project.screens()->listItems(), [&name](const DesignerObject *screen) {
                  return static_cast<const Screen *>(screen)->hasElement(name);
              });
}

EditRefusal ProjectPath::suggestion(Project &project, const QString &path)
{
    Walk walk{&project};
    findFrom(project, path, walk);
    const auto [owner, known] = walk;
    const qsizetype end = path.indexOf(u'.', known);
    const QString name = path.mid(known, end < 0 ? -1 : end - known);
    const QString rest = end < 0 ? QString() : path.sliced(end);
    QString meant;
    if (!owner->getProperty(name)) {
        const QString nearest = Suggestion::nearest(name, namesBelow(*owner));
        const DesignerObject *element =
            nearest.isEmpty() && owner == &project ? nearestElement(project, name) : nullptr;
        meant = !nearest.isEmpty() ? path.first(known) + nearest + rest
                : element          ? element->objectPath() + rest
                                   : QString();
    }
    if (!meant.isEmpty()) {
        return {LocalizationHelper::coreString(u"Did you mean \"%1\"?"_s).arg(meant)};
    }
    return {{}, EditRefusal::Contents, owner->objectPath()};
}

EditRefusal ProjectPath::refusal(Project &project, const QString &path, Wanted wanted)
{
    const auto [object, property] = find(project, path);
    if (object && property && wanted == Object) {
        const QString english = u"\"%1\" is a property, but an object is needed, such as \"%2\"."_s;
        return {LocalizationHelper::coreString(english).arg(path, object->objectPath())};
    }
    if (object && !property && wanted == Property) {
        const QString english = u"\"%1\" is an object, but a property is needed, such as \"%1.%2\"."_s;
        return {LocalizationHelper::coreString(english).arg(path, object->properties().at(1)->id()),
                EditRefusal::Properties, path};
    }
    static const QString missing[] = {u"There is no object \"%1\"."_s, u"There is no property \"%1\"."_s,
                                      u"There is no object or property \"%1\"."_s};
    EditRefusal refusal = suggestion(project, path);
    const QString message = LocalizationHelper::coreString(missing[wanted]).arg(path);
    refusal.message = refusal.message.isEmpty() ? message : u"%1 %2"_s.arg(message, refusal.message);
    return refusal;
}

} // namespace Halvane::Corvex::Designer
