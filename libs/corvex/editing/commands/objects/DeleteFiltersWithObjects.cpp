// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/DeleteFiltersWithObjects.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/objects/DeleteFilter.h"
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/FilterElement.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QList<DesignerObject *> elementsOf(const QList<DesignerObject *> &filters, const Screen *screen)
{
    QList<DesignerObject *> elements;
    for (DesignerObject *filter : filters) {
        for (const QString &name : static_cast<const FilterElement *>(filter)->elementNames()) {
            if (Element *element = screen->getElement(name.section(u'.', -1))) {
                elements.append(element);
            }
        }
    }
    return elements;
}

} // namespace

DeleteFiltersWithObjects::DeleteFiltersWithObjects(const QList<DesignerObject *> &filters, Screen *screen,
                                                   bool withObjects, bool selected, UndoCommand *parent)
    : ModelCommand({}, selected, parent)
{
    setTitle(u"Delete Filters"_s);
    QList<DesignerObject *> known;
    for (DesignerObject *filter : filters) {
        if (screen && kindCast<FilterElement>(filter) && filter->listProperty() == screen->filters()
            && !known.contains(filter)) {
            known.append(filter);
            new DeleteFilter(screen->filters(), filter, selected, this);
        }
    }
    if (known.isEmpty()) {
        refuse(Common::LocalizationHelper::coreString(u"There is no such filter."_s));
    } else if (withObjects) {
        DeleteObjectsAndCheckFilters::addDeletions(elementsOf(known, screen), this);
    }
}

} // namespace Halvane::Corvex::Designer
