// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <span>
#include <utility>

namespace Halvane::Corvex::Designer {

//! The data of a RowOrder for each item. Items derive from it.
struct RowLink
{
    RowLink *up = nullptr;
    RowLink *left = nullptr;
    RowLink *right = nullptr;
    qsizetype count = 1; //!< the number of items in its subtree, including itself
};

/*! A list that finds an item by its row, and the row of an item, in logarithmic time; insertions and removals
    take the same time. Items are not owned, and an item is in at most one list.

    It is a randomly balanced binary tree whose nodes count their subtrees.
*/
class RowOrder
{
public:
    qsizetype count() const { return countOf(m_root); }
    //! The row must be valid.
    RowLink *at(qsizetype row) const;
    //! The row of an item that is in a list.
    static qsizetype rowOf(const RowLink &item);

    //! Replaces all items. No item may be in a list.
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
