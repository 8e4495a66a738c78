// SPDX-License-Identifier: MIT
#include "ProjectPath.h"

#include "corvex/core/DesignerObject.h"

#include "Call.h"
#include "Help.h"

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

ProjectPlace findBelow(DesignerObject &owner, const QString &path)
{
    for (qsizetype end = path.indexOf(u'.'); end >= 0 && end < longestName;
         end = path.indexOf(u'.', end + 1)) {
        if (DesignerObject *child = childNamed(owner, path.first(end))) {
            ProjectPlace place = findBelow(*child, path.sliced(end + 1));
            if (place.object) {
                return place;
            }
        }
    }
    if (DesignerObject *child = childNamed(owner, path)) {
        return {child, {}};
    }
    const SharedProperty property = owner.getProperty(path);
    return {property ? &owner : nullptr, property};
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

} // namespace

ProjectPlace ProjectPath::find(DesignerObject *project, const QString &path)
{
    ProjectPlace place = findBelow(*project, path);
    const QString name = project->getIdName();
    if (place.object || !path.startsWith(name)) {
        return place;
    }
    if (path == name) {
        return {project, {}};
    }
    return path.at(name.size()) == u'.' ? findBelow(*project, path.sliced(name.size() + 1)) : place;
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

QString ProjectPath::hint(DesignerObject *project, const QString &path)
{
    DesignerObject *owner = project;
    qsizetype known = 0; // of the path, the "." behind the owner included
    for (qsizetype end = path.indexOf(u'.'); end >= 0 && end < longestName;
         end = path.indexOf(u'.', end + 1)) {
        const ProjectPlace place = find(project, path.first(end));
        if (place.object && !place.property) {
            owner = place.object;
            known = end + 1;
        }
    }
    const qsizetype end = path.indexOf(u'.', known);
    const QString nearest = Help::nearest(path.mid(known, end < 0 ? -1 : end - known), namesBelow(*owner));
    if (nearest.isEmpty() || path.mid(known).startsWith(nearest + u'.')) {
        return u"\"corvex tree FILE %1\" shows what there is."_s.arg(owner == project ? project->getIdName()
                                                                                      : owner->objectPath());
    }
    return u"Did you mean \"%1\"?"_s.arg(path.first(known) + nearest
                                         + (end < 0 ? QString() : path.sliced(end)));
}

ExitCode ProjectPath::notFound(const QString &path, const Call &call)
{
    return call.failed(u"There is nothing called \"%1\" in \"%2\". \"corvex tree\" without a path shows all "
                       "objects, with the path of an object its properties."_s.arg(path, call.argument(0)),
                       ExitCode::Usage);
}

} // namespace Halvane::Corvex::Tool
