// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/DeleteFilter.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/private/EditStep.h"
#include "corvex/project/elements/FilterElement.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

DeleteFilter::DeleteFilter(const SharedProperty &filters, DesignerObject *filter, bool selected,
                           UndoCommand *parent)
    : ModelCommand(filters, selected, parent)
{
    if (!filters || !kindCast<FilterElement>(filter) || filter->listProperty() != filters) {
        refuse(Common::LocalizationHelper::coreString(u"There is no such filter."_s));
        return;
    }
    setTitle(u"Delete \"%1\""_s, filter->getIdName());
    addStep<TakeItemStep>(filters, filter);
    setActiveItem(filter);
    setSelection(selected ? QList<DesignerObject *>{filter} : QList<DesignerObject *>());
}

} // namespace Halvane::Corvex::Designer
