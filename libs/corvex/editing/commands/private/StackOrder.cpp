// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/StackOrder.h"

#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/CompositeCommand.h"
#include "corvex/editing/commands/objects/MoveObject.h"
#include "corvex/editing/commands/objects/SwapItems.h"
#include "corvex/project/elements/VisualElement.h"

namespace Halvane::Corvex::Designer {

std::vector<StackOrder> StackOrder::of(const QList<DesignerObject *> &elements)
{
    std::vector<StackOrder> orders;
    QHash<SharedProperty, size_t> known;
    for (const DesignerObject *element : elements) {
        const SharedProperty list = element->listProperty();
        if (!known.contains(list)) {
            known.insert(list, orders.size());
            StackOrder &order = orders.emplace_back();
            order.m_list = list;
            qsizetype index = 0;
            for (DesignerObject *item : list->itemList()->items()) {
                if (kindCast<VisualElement>(item)) {
                    order.m_first = order.m_items.isEmpty() ? index : order.m_first;
                    order.m_items.append(item);
                }
                ++index;
            }
        }
        orders.at(known.value(list)).m_selected.insert(element);
    }
    return orders;
}

bool StackOrder::canRaise() const
{
    for (qsizetype i = m_items.size() - m_selected.size(); i < m_items.size(); ++i) {
        if (!isSelected(i)) {
            return true;
        }
    }
    return false;
}

bool StackOrder::canLower() const
{
    for (qsizetype i = 0; i < m_selected.size(); ++i) {
        if (!isSelected(i)) {
            return true;
        }
    }
    return false;
}

void StackOrder::moveItem(qsizetype from, qsizetype to, CompositeCommand &edit) const
{
    if (from != to) {
        new MoveObject(m_list, m_list, m_items.at(from), m_first + to, false, &edit);
    }
}

void StackOrder::move(Arrangement::Level level, CompositeCommand &edit) const
{
    switch (level) {
    case Arrangement::Level::Raise:
        return raise(edit);
    case Arrangement::Level::Lower:
        return lower(edit);
    case Arrangement::Level::Front:
        return toFront(edit);
    case Arrangement::Level::Back:
        return toBack(edit);
    }
}

//! Moves the element above each run of selected ones below the run.
void StackOrder::raise(CompositeCommand &edit) const
{
    for (qsizetype above = m_items.size() - 1; above > 0; --above) {
        qsizetype lowest = above;
        while (!isSelected(above) && lowest > 0 && isSelected(lowest - 1)) {
            --lowest;
        }
        moveItem(above, lowest, edit);
        above = lowest;
    }
}

void StackOrder::lower(CompositeCommand &edit) const
{
    const qsizetype last = m_items.size() - 1;
    for (qsizetype below = 0; below < last; ++below) {
        qsizetype highest = below;
        while (!isSelected(below) && highest < last && isSelected(highest + 1)) {
            ++highest;
        }
        moveItem(below, highest, edit);
        below = highest;
    }
}

void StackOrder::toFront(CompositeCommand &edit) const
{
    qsizetype place = m_items.size() - 1;
    for (qsizetype i = place; i >= 0; --i) {
        if (isSelected(i)) {
            moveItem(i, place--, edit);
        }
    }
}

void StackOrder::toBack(CompositeCommand &edit) const
{
    qsizetype place = 0;
    for (qsizetype i = 0; i < m_items.size(); ++i) {
        if (isSelected(i)) {
            moveItem(i, place++, edit);
        }
    }
}

void StackOrder::flip(CompositeCommand &edit) const
{
    QList<DesignerObject *> members;
    for (DesignerObject *item : m_items) {
        if (m_selected.contains(item)) {
            members.append(item);
        }
    }
    for (qsizetype i = 0; i < members.size() / 2; ++i) {
        new SwapItems(m_list, members.at(i), members.at(members.size() - 1 - i), &edit);
    }
}

} // namespace Halvane::Corvex::Designer
