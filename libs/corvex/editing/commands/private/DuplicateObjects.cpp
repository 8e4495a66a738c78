// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/DuplicateObjects.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/editing/commands/private/EditedKind.h"
#include "corvex/editing/commands/private/ObjectCopies.h"
#include "corvex/editing/commands/private/ObjectSelection.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

DuplicateObjects::DuplicateObjects(const QList<DesignerObject *> &objects, const QString &name)
{
    const QList<DesignerObject *> originals =
        ObjectSelection::inListOrder(ObjectSelection::outermost(objects));
    if (originals.isEmpty()) {
        refuse(Common::LocalizationHelper::coreString(u"There is nothing to duplicate."_s));
        return;
    }
    ObjectCopies copies(originals, name);
    if (!copies.error().isEmpty()) {
        refuse(copies.error());
        return;
    }
    if (originals.size() == 1) {
        setTitle(u"Duplicate \"%1\""_s, originals.first()->getIdName());
    } else {
        setTitle(u"Duplicate %1 objects"_s, QString::number(originals.size()));
    }
    QList<DesignerObject *> added;
    for (std::unique_ptr<DesignerObject> &copy : copies.take()) {
        DesignerObject *original = originals.at(added.size());
        added.append(copy.get());
        EditedKind::of(original)->addition(copy.release(), original, this);
    }
    setSelection(added, originals);
}

} // namespace Halvane::Corvex::Designer
