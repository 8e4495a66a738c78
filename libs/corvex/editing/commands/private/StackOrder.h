// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/objects/Arrangement.h"

#include <QSet>

#include <vector>

namespace Halvane::Corvex::Designer {

class CompositeCommand;

//! The places of selected elements in the drawing order of one list.
class StackOrder
{
public:
    //! One order for each list of the elements.
    static std::vector<StackOrder> of(const QList<DesignerObject *> &elements);

    bool canRaise() const;
    bool canLower() const;
    bool canFlip() const { return m_selected.size() > 1; }

    // Each adds commands to \a edit, at most one for each element.
    void move(Arrangement::Level level, CompositeCommand &edit) const;
    void flip(CompositeCommand &edit) const;

private:
    void raise(CompositeCommand &edit) const;
    void lower(CompositeCommand &edit) const;
    void toFront(CompositeCommand &edit) const;
    void toBack(CompositeCommand &edit) const;
    bool isSelected(qsizetype place) const { return m_selected.contains(m_items.at(place)); }
    //! Moves the item at \a from to where \a to is.
    void moveItem(qsizetype from, qsizetype to, CompositeCommand &edit) const;

    SharedProperty m_list;
    QList<DesignerObject *> m_items; //!< all visual elements of the list, the lowest first
    qsizetype m_first = 0;           //!< the index of the lowest in the list
    QSet<const DesignerObject *> m_selected;
};

} // namespace Halvane::Corvex::Designer
