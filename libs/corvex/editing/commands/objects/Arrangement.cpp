// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/Arrangement.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/CompositeCommand.h"
#include "corvex/editing/commands/groups/GroupCommand.h"
#include "corvex/editing/commands/groups/UngroupCommand.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/editing/commands/private/ElementPlacement.h"
#include "corvex/editing/commands/private/ObjectSelection.h"
#include "corvex/editing/commands/private/StackOrder.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/text/ValueConversion.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Line = Arrangement::Line;

//! The visual elements of the selection, in its order.
QList<DesignerObject *> visualElements(const QList<DesignerObject *> &objects)
{
    QList<DesignerObject *> elements = ObjectSelection::outermost(objects);
    elements.removeIf([](const DesignerObject *object) {
        return !kindCast<VisualElement>(object) || !object->screen() || kindCast<Screen>(object);
    });
    return elements;
}

//! Elements with their bounds on the screen.
class Placed
{
public:
    explicit Placed(const QList<DesignerObject *> &objects)
    {
        QHash<const DesignerProperty *, QTransform> known;
        for (DesignerObject *element : visualElements(objects)) {
            const DesignerProperty *list = element->listProperty().data();
            if (!known.contains(list)) {
                known.insert(list, toScreen(*list));
            }
            const QTransform &way = known.value(list);
            elements.append({element, way.mapRect(ElementPlacement::shownBounds(element)), way});
            bounds |= elements.constLast().bounds;
        }
    }

    struct Item
    {
        DesignerObject *element;
        QRectF bounds;
        QTransform toScreen; //!< from the coordinates of its list

        //! The position after a move by \a way on the screen, on whole pixels where that is possible.
        RequestedValue moved(const QPointF &way) const
        {
            const SharedProperty position = element->getProperty(u"position");
            const QPointF before = ValueConversion::toPoint(position->valueString());
            const QPointF shift = toScreen.inverted().map(way) - toScreen.inverted().map(QPointF());
            QPointF after = before + shift;
            if (toScreen.type() <= QTransform::TxTranslate
                && element->getProperty(u"rotation")->valueString() == "0"_L1) {
                after = {std::round(after.x()), std::round(after.y())};
            }
            // A direction in which nothing moves keeps its exact value.
            return {position, ValueConversion::toString(QPointF(shift.x() == 0 ? before.x() : after.x(),
                                                                shift.y() == 0 ? before.y() : after.y()))};
        }
    };
    QList<Item> elements;
    QRectF bounds;

    //! The nearest middle at which the largest element is on whole pixels. The others may be half a pixel off
    //! it, and aligning them again changes nothing.
    QPointF wholeMiddle(const QPointF &middle) const
    {
        QSizeF largest(0, 0);
        for (const Item &item : elements) {
            largest = largest.expandedTo(item.bounds.size());
        }
        const QPointF half(largest.width() / 2, largest.height() / 2);
        const QPointF corner = middle - half;
        return QPointF(std::round(corner.x()), std::round(corner.y())) + half;
    }

private:
    static QTransform toScreen(const DesignerProperty &list)
    {
        QTransform way;
        for (const DesignerObject *group = list.parentObject(); kindCast<GroupElement>(group);
             group = group->ownerObject()) {
            way *= ElementPlacement::of(group).outward();
        }
        return way;
    }
};

//! How far a rectangle must move.
QPointF wayTo(Line line, const QRectF &from, const QRectF &to)
{
    switch (line) {
    case Line::Left:
        return {to.left() - from.left(), 0};
    case Line::Center:
        return {to.center().x() - from.center().x(), 0};
    case Line::Right:
        return {to.right() - from.right(), 0};
    case Line::Top:
        return {0, to.top() - from.top()};
    case Line::Middle:
        return {0, to.center().y() - from.center().y()};
    case Line::Bottom:
        return {0, to.bottom() - from.bottom()};
    }
    return {};
}

//! Several edits of one selection, which stays selected.
class Rearrangement : public CompositeCommand
{
public:
    Rearrangement(const QString &english, const QList<DesignerObject *> &selected)
    {
        setTitle(english);
        setSelection(selected);
    }
};

PlannedCommand checked(std::unique_ptr<CompositeCommand> edit)
{
    if (edit->childCount() == 0) {
        return {};
    }
    if (!edit->isValid()) {
        return {nullptr, edit->errorString(), {}};
    }
    return {std::move(edit), {}, {}};
}

//! Changes the values of some of the elements.
PlannedCommand changed(const QString &english, const QList<DesignerObject *> &selected,
                       const QList<RequestedValue> &values)
{
    PlannedCommand planned = Commands::changeOf(values);
    if (planned) {
        auto edit = std::make_unique<Rearrangement>(english, selected);
        for (const auto &[property, text] : values) {
            if (!property->equalsValue(text)) {
                new ChangeProperty(property, text, true, edit.get());
            }
        }
        planned.command = std::move(edit);
    }
    return planned;
}

bool hasOwnSize(const DesignerObject *element)
{
    return element->getProperty(u"size") && !kindCast<GroupElement>(element);
}

//! The elements that can form a group: those of the list of the first one.
bool areInOneList(const QList<DesignerObject *> &elements)
{
    return std::ranges::all_of(elements, [&](const DesignerObject *element) {
        return element->listProperty() == elements.constFirst()->listProperty();
    });
}

} // namespace

QRectF Arrangement::bounds(const QList<DesignerObject *> &objects)
{
    return Placed(objects).bounds;
}

PlannedCommand Arrangement::alignment(const QList<DesignerObject *> &objects, Line line)
{
    static const QString titles[] = {u"Align left"_s, u"Align centers"_s, u"Align right"_s,
                                     u"Align top"_s,  u"Align middles"_s, u"Align bottom"_s};
    const Placed placed(objects);
    if (placed.elements.isEmpty()) {
        return {};
    }
    QRectF target = placed.bounds;
    if (placed.elements.size() == 1) {
        const Screen *screen = placed.elements.constFirst().element->screen();
        target = {QPointF(), ValueConversion::toSize(screen->size()->valueString())};
    }
    if (line == Line::Center || line == Line::Middle) {
        target.moveCenter(placed.wholeMiddle(target.center()));
    }
    QList<RequestedValue> values;
    for (const Placed::Item &item : placed.elements) {
        values.append(item.moved(wayTo(line, item.bounds, target)));
    }
    return changed(titles[int(line)], visualElements(objects), values);
}

PlannedCommand Arrangement::distribution(const QList<DesignerObject *> &objects, Qt::Orientation direction)
{
    Placed placed(objects);
    if (placed.elements.size() < 3) {
        return {};
    }
    const bool isAcross = direction == Qt::Horizontal;
    const auto start = [&](const QRectF &bounds) { return isAcross ? bounds.left() : bounds.top(); };
    const auto length = [&](const QRectF &bounds) { return isAcross ? bounds.width() : bounds.height(); };
    std::ranges::stable_sort(placed.elements, {}, [&](const Placed::Item &item) {
        return start(item.bounds) + length(item.bounds) / 2;
    });
    const QRectF &last = placed.elements.constLast().bounds;
    double free = start(last) + length(last) - start(placed.elements.constFirst().bounds);
    for (const Placed::Item &item : std::as_const(placed.elements)) {
        free -= length(item.bounds);
    }
    const double gap = free / double(placed.elements.size() - 1);
    double next = start(placed.elements.constFirst().bounds);
    QList<RequestedValue> values;
    for (const Placed::Item &item : std::as_const(placed.elements)) {
        const bool isOuter = &item == &placed.elements.constFirst() || &item == &placed.elements.constLast();
        const double way = isOuter ? 0 : next - start(item.bounds);
        values.append(item.moved(isAcross ? QPointF(way, 0) : QPointF(0, way)));
        next += length(item.bounds) + gap;
    }
    return changed(isAcross ? u"Distribute across"_s : u"Distribute down"_s, visualElements(objects), values);
}

PlannedCommand Arrangement::sameSize(const QList<DesignerObject *> &objects, Qt::Orientations sides)
{
    const QList<DesignerObject *> elements = visualElements(objects);
    if (elements.size() < 2) {
        return {};
    }
    const QSizeF wanted = ElementPlacement::of(elements.constFirst()).size;
    QList<RequestedValue> values;
    QStringList notes;
    for (const DesignerObject *element : elements) {
        if (!hasOwnSize(element)) {
            if (element != elements.constFirst()) {
                notes.append(LocalizationHelper::coreString(u"\"%1\" has no size of its own and keeps it."_s)
                                 .arg(element->getIdName()));
            }
            continue;
        }
        const SharedProperty size = element->getProperty(u"size");
        QSizeF after = ValueConversion::toSize(size->valueString());
        after.setWidth(sides.testFlag(Qt::Horizontal) ? wanted.width() : after.width());
        after.setHeight(sides.testFlag(Qt::Vertical) ? wanted.height() : after.height());
        values.append({size, ValueConversion::toString(after)});
    }
    PlannedCommand planned = changed(sides == Qt::Horizontal ? u"Same width"_s
                                     : sides == Qt::Vertical ? u"Same height"_s
                                                             : u"Same size"_s,
                                     elements, values);
    if (planned) {
        planned.notes += notes;
    }
    return planned;
}

PlannedCommand Arrangement::restacking(const QList<DesignerObject *> &objects, Level level)
{
    static const QString titles[] = {u"Raise"_s, u"Lower"_s, u"To the front"_s, u"To the back"_s};
    const QList<DesignerObject *> elements = visualElements(objects);
    auto edit = std::make_unique<Rearrangement>(titles[int(level)], elements);
    for (const StackOrder &order : StackOrder::of(elements)) {
        order.move(level, *edit);
    }
    return checked(std::move(edit));
}

PlannedCommand Arrangement::flippedOrder(const QList<DesignerObject *> &objects)
{
    const QList<DesignerObject *> elements = visualElements(objects);
    auto edit = std::make_unique<Rearrangement>(u"Flip order"_s, elements);
    for (const StackOrder &order : StackOrder::of(elements)) {
        order.flip(*edit);
    }
    return checked(std::move(edit));
}

PlannedCommand Arrangement::grouping(const QList<DesignerObject *> &objects)
{
    const QList<DesignerObject *> elements = visualElements(objects);
    if (elements.size() < 2) {
        return {};
    }
    if (!areInOneList(elements)) {
        return {nullptr,
                LocalizationHelper::coreString(
                    u"Elements of different groups cannot form a group. Select elements of one group."_s),
                {}};
    }
    DesignerObject *group = DesignerFactory::instance()->createObject(GroupElement::kindName());
    group->setParent(nullptr);
    group->setIdName(elements.constFirst()->screen()->uniqueElementName(group->baseName()));
    auto command = std::make_unique<GroupCommand>(group, elements);
    if (!command->isValid()) {
        return {nullptr, command->errorString(), {}};
    }
    return {std::move(command), {}, {}};
}

PlannedCommand Arrangement::ungrouping(const QList<DesignerObject *> &objects)
{
    QList<DesignerObject *> groups = ObjectSelection::inListOrder(visualElements(objects));
    groups.removeIf([](const DesignerObject *element) { return !kindCast<GroupElement>(element); });
    QList<DesignerObject *> members;
    for (const DesignerObject *group : std::as_const(groups)) {
        members += static_cast<const GroupElement *>(group)->elements()->listItems();
    }
    // The upper groups first, so that the places of the lower ones in the list do not change.
    std::ranges::reverse(groups);

    class Ungrouping : public CompositeCommand
    {
    public:
        Ungrouping(const QList<DesignerObject *> &groups, const QList<DesignerObject *> &members)
        {
            for (DesignerObject *group : groups) {
                new UngroupCommand(group, this);
            }
            describe();
            setSelection(members, groups);
        }
    };
    return checked(std::make_unique<Ungrouping>(groups, members));
}

Arrangement::Abilities Arrangement::abilities(const QList<DesignerObject *> &objects)
{
    const QList<DesignerObject *> elements = visualElements(objects);
    Abilities found;
    found.setFlag(Ability::Align, !elements.isEmpty());
    found.setFlag(Ability::Distribute, elements.size() > 2);
    found.setFlag(Ability::Resize, elements.size() > 1 && std::ranges::any_of(elements, hasOwnSize));
    found.setFlag(Ability::Group, elements.size() > 1 && areInOneList(elements));
    found.setFlag(Ability::Ungroup, std::ranges::any_of(elements, [](const DesignerObject *element) {
                      return kindCast<GroupElement>(element) != nullptr;
                  }));
    for (const StackOrder &order : StackOrder::of(elements)) {
        found.setFlag(Ability::Raise, found.testFlag(Ability::Raise) || order.canRaise());
        found.setFlag(Ability::Lower, found.testFlag(Ability::Lower) || order.canLower());
        found.setFlag(Ability::Flip, found.testFlag(Ability::Flip) || order.canFlip());
    }
    return found;
}

} // namespace Halvane::Corvex::Designer
