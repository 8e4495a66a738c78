// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/DeleteObjectsAndCheckFilters.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/EditingDialogs.h"
#include "corvex/editing/commands/objects/DeleteFilter.h"
#include "corvex/editing/commands/objects/DeleteObject.h"
#include "corvex/editing/commands/private/ObjectSelection.h"
#include "corvex/editing/references/ReferenceTarget.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/FilterElement.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The names in a filter that are not being deleted.
QStringList othersIn(const FilterElement *filter, const QSet<QString> &going, bool *isConcerned)
{
    QStringList others;
    for (const QString &name : filter->elementNames()) {
        const QStringList segments = name.split(u'.');
        if (std::any_of(segments.begin(), segments.end(),
                        [&going](const QString &segment) { return going.contains(segment); })) {
            *isConcerned = true;
        } else {
            others.append(name);
        }
    }
    return others;
}

QList<DesignerObject *> filtersToDelete(const Screen *screen, const QList<DesignerObject *> &objects)
{
    ReferenceTarget going;
    for (const DesignerObject *object : objects) {
        going.add(ReferenceTarget(object));
    }
    QList<DesignerObject *> filters;
    QMap<QString, QString> common;
    for (DesignerObject *filter : screen->filters()->listItems()) {
        if (going.names().contains(filter->getIdName())) {
            continue; // it is being deleted itself
        }
        bool isConcerned = false;
        const QStringList others =
            othersIn(static_cast<const FilterElement *>(filter), going.names(), &isConcerned);
        if (isConcerned && others.isEmpty()) {
            filters.append(filter);
        } else if (isConcerned) {
            common.insert(filter->getIdName(), others.join(u", "_s));
        }
    }
    if (!common.isEmpty()) {
        for (const QString &name : EditingDialogs::instance()->filtersToDelete(common)) {
            DesignerObject *filter = common.contains(name) ? screen->filters()->getListItem(name) : nullptr;
            if (filter && !filters.contains(filter)) {
                filters.append(filter);
            }
        }
    }
    return filters;
}

} // namespace

QList<DesignerObject *> DeleteObjectsAndCheckFilters::addDeletions(const QList<DesignerObject *> &objects,
                                                                   UndoCommand *parent)
{
    QList<DesignerObject *> roots = ObjectSelection::outermost(objects);
    for (DesignerObject *object : std::as_const(roots)) {
        const bool isFirst = object == roots.constFirst();
        auto *deletion = new DeleteObject(object, isFirst ? roots : QList<DesignerObject *>(), true, parent);
        deletion->setText(
            Common::LocalizationHelper::coreString(u"Delete \"%1\""_s).arg(object->getIdName()));
    }
    return roots;
}

DeleteObjectsAndCheckFilters::DeleteObjectsAndCheckFilters(const QList<DesignerObject *> &objects,
                                                           Screen *screen, UndoCommand *parent)
    : ModelCommand({}, true, parent)
{
    setTitle(u"Delete Elements and Filters"_s);
    QList<DesignerObject *> own;
    for (DesignerObject *object : objects) {
        if (screen && kindCast<Element>(object) && object->screen() == screen) {
            own.append(object);
        }
    }
    if (own.isEmpty()) {
        refuse(Common::LocalizationHelper::coreString(u"There is nothing to delete."_s));
        return;
    }
    const QList<DesignerObject *> deleted = addDeletions(own, this);
    for (DesignerObject *filter : filtersToDelete(screen, deleted)) {
        new DeleteFilter(screen->filters(), filter, false, this);
    }
}

} // namespace Halvane::Corvex::Designer
