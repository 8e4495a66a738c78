// SPDX-License-Identifier: MIT
#include "corvex/editing/references/ReferenceScanner.h"

#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/editing/references/ReferenceTarget.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

void ReferenceScanner::visitSites(const DesignerObject *object, bool recursive, const SiteVisitor &visitor)
{
    for (const SharedProperty &property : object->properties()) {
        if (property->isList()) {
            for (const DesignerObject *item : recursive ? property->listItems() : QList<DesignerObject *>()) {
                visitSites(item, true, visitor);
            }
        } else if (property->isObject()) {
            if (recursive && property->objectValue()) {
                visitSites(property->objectValue(), true, visitor);
            }
        } else if (ReferenceForm::of(*property)) {
            visitor(property);
        }
    }
}

QList<ReferenceUse> ReferenceScanner::uses(const ReferenceTarget &target)
{
    QList<ReferenceUse> found;
    if (!target.isValid()) {
        return found;
    }
    visitSites(target.project(), true, [&](const SharedProperty &property) {
        for (const Mention &mention : ReferenceForm::mentions(*property)) {
            if (target.isMeantBy(mention, property->parentObject())) {
                found.append({property, mention.path});
            }
        }
    });
    return found;
}

} // namespace Halvane::Corvex::Designer
