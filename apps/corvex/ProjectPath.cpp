// SPDX-License-Identifier: MIT
#include "ProjectPath.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include "terminal/Call.h"
#include "terminal/Suggestion.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

// Far more than any name that a project may have; a path has one for each of its objects.
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

//! How far a path leads.
struct Walk
{
    DesignerObject *owner; //!< the last object that was found
    qsizetype known = 0;   //!< of the path, the "." after the owner included
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

ProjectPlace findFrom(DesignerObject &project, const QString &path, Walk &walk)
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

//! How closely the list describes such an item; -1 when it does not take it.
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

//! The names that may follow that of \a owner in a path.
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

//! An element with the very name, else with one like it; null without one.
const DesignerObject *nearestElement(const DesignerObject &project, const QString &name)
{
    QStringList names;
    const QList<DesignerObject *> screens = project.getProperty(u"screens")->listItems();
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

ProjectPlace ProjectPath::find(DesignerObject *project, const QString &path)
{
    Walk walk{project};
    return findFrom(*project, path, walk);
}

SharedProperty ProjectPath::listFor(DesignerObject *project, const QString &path, const DesignerObject &item)
{
    const ProjectPlace place = find(project, path);
    if (!place.object || place.property) {
        return place.property && place.property->isList() ? place.property : SharedProperty();
    }
    const auto list =
        std::ranges::max_element(place.object->properties(), {}, [&item](const SharedProperty &property) {
            return closeness(property, item);
        });
    return closeness(*list, item) >= 0 ? *list : SharedProperty();
}

bool ProjectPath::isName(const DesignerObject &project, const QString &name)
{
    return childNamed(project, name)
           || std::ranges::any_of(project.getProperty(u"screens")->listItems(),
                                  [&name](const DesignerObject *screen) {
                                      return static_cast<const Screen *>(screen)->hasElement(name);
                                  });
}

QString ProjectPath::hint(DesignerObject *project, const QString &path)
{
    Walk walk{project};
    findFrom(*project, path, walk);
    const auto [owner, known] = walk;
    const qsizetype end = path.indexOf(u'.', known);
    const QString name = path.mid(known, end < 0 ? -1 : end - known);
    const QString rest = end < 0 ? QString() : path.sliced(end);
    if (!owner->getProperty(name)) {
        if (const QString nearest = Suggestion::nearest(name, namesBelow(*owner)); !nearest.isEmpty()) {
            return u"Did you mean \"%1\"?"_s.arg(path.first(known) + nearest + rest);
        }
        const DesignerObject *element = owner == project ? nearestElement(*project, name) : nullptr;
        if (element) {
            return u"Did you mean \"%1\"?"_s.arg(element->objectPath() + rest);
        }
    }
    return u"\"corvex tree FILE %1\" shows what there is."_s.arg(owner == project ? project->getIdName()
                                                                                  : owner->objectPath());
}

QString ProjectPath::problem(DesignerObject *project, const QString &path, Wanted wanted)
{
    const auto [object, property] = find(project, path);
    if (object && property && wanted == Object) {
        return u"\"%1\" is a property, where an object is due: \"%2\" is one."_s.arg(
            path, object == project ? project->getIdName() : object->objectPath());
    }
    if (object && !property && wanted == Property) {
        return u"\"%1\" is an object, where a property is due, such as \"%1.%2\". \"corvex tree FILE %1\" "
               "shows them all."_s.arg(path, object->properties().at(1)->id());
    }
    static const QString names[] = {u"object"_s, u"property"_s, u"object or property"_s};
    return u"There is no %1 \"%2\". %3"_s.arg(names[wanted], path, hint(project, path));
}

ExitCode ProjectPath::notFound(DesignerObject &project, const QString &path, const Call &call)
{
    return call.failed(
        u"There is nothing called \"%1\" in \"%2\". %3"_s.arg(path, call.argument(0), hint(&project, path)),
        ExitCode::Usage);
}

} // namespace Halvane::Corvex::Tool
