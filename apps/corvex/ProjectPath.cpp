// SPDX-License-Identifier: MIT
#include "ProjectPath.h"

#include "corvex/core/DesignerObject.h"

#include "Call.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

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
    for (qsizetype end = path.indexOf(u'.'); end >= 0; end = path.indexOf(u'.', end + 1)) {
        if (DesignerObject *child = childNamed(owner, path.first(end))) {
            const ProjectPlace place = findBelow(*child, path.sliced(end + 1));
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

} // namespace

ProjectPlace ProjectPath::find(DesignerObject *project, const QString &path)
{
    const ProjectPlace place = findBelow(*project, path);
    return !place.object && path == project->getIdName() ? ProjectPlace{project, {}} : place;
}

ExitCode ProjectPath::notFound(const QString &path, const Call &call)
{
    return call.failed(u"There is nothing called \"%1\" in \"%2\". \"corvex tree\" without a path shows all "
                       "objects, with the path of an object its properties."_s.arg(path, call.argument(0)),
                       ExitCode::Usage);
}

} // namespace Halvane::Corvex::Tool
