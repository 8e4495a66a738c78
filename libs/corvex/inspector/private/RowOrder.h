// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <span>
#include <utility>

namespace Halvane::Corvex::Designer {

//! What a RowOrder needs to know of an item. Items derive from it.
struct RowLink
{
    RowLink *up = nullptr;
    RowLink *left = nullptr;
    RowLink *right = nullptr;
    qsizetype count = 1; //!< of the items below it in the tree, itself included
};

/*! A list of items that finds an item by its row, and the row of an item, in logarithmic time. Insertions and
    removals take as long. It owns no item, and an item is in one list at most.

    It is a binary tree whose nodes count what is below them, balanced at random. */
class RowOrder
{
public:
    qsizetype count() const { return countOf(m_root); }
    //! The row must be one of the list.
    RowLink *at(qsizetype row) const;
    //! The row of an item that is in a list.
    static qsizetype rowOf(const RowLink &item);

    //! Replaces all items. None of \a items is in a list.
    void assign(std::span<RowLink *const> items);
    void insert(qsizetype row, RowLink &item);
    void remove(RowLink &item);

private:
    static qsizetype countOf(const RowLink *top) { return top ? top->count : 0; }
    static void update(RowLink &top);
    static RowLink *balanced(std::span<RowLink *const> items);
    static std::pair<RowLink *, RowLink *> split(RowLink *top, qsizetype row);
    RowLink *join(RowLink *left, RowLink *right);
    void setRoot(RowLink *root);

    RowLink *m_root = nullptr;
    quint64 m_random = 1;
};

} // namespace Halvane::Corvex::Designer
