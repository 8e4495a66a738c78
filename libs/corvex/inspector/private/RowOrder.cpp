// SPDX-License-Identifier: MIT
#include "corvex/inspector/private/RowOrder.h"

namespace Halvane::Corvex::Designer {

void RowOrder::update(RowLink &top)
{
    top.count = countOf(top.left) + 1 + countOf(top.right);
    for (RowLink *child : {top.left, top.right}) {
        if (child) {
            child->up = &top;
        }
    }
}

void RowOrder::setRoot(RowLink *root)
{
    m_root = root;
    if (root) {
        root->up = nullptr;
    }
}

RowLink *RowOrder::at(qsizetype row) const
{
    RowLink *top = m_root;
    while (true) {
        const qsizetype before = countOf(top->left);
        if (row == before) {
            return top;
        }
        if (row < before) {
            top = top->left;
        } else {
            row -= before + 1;
            top = top->right;
        }
    }
}

qsizetype RowOrder::rowOf(const RowLink &item)
{
    qsizetype row = countOf(item.left);
    for (const RowLink *top = &item; top->up; top = top->up) {
        if (top == top->up->right) {
            row += countOf(top->up->left) + 1;
        }
    }
    return row;
}

RowLink *RowOrder::balanced(std::span<RowLink *const> items)
{
    if (items.empty()) {
        return nullptr;
    }
    const size_t middle = items.size() / 2;
    RowLink *top = items[middle];
    top->left = balanced(items.first(middle));
    top->right = balanced(items.subspan(middle + 1));
    update(*top);
    return top;
}

void RowOrder::assign(std::span<RowLink *const> items)
{
    setRoot(balanced(items));
}

//! The first \a row items, and the others.
std::pair<RowLink *, RowLink *> RowOrder::split(RowLink *top, qsizetype row)
{
    if (!top) {
        return {};
    }
    const qsizetype before = countOf(top->left);
    std::pair<RowLink *, RowLink *> parts;
    if (row <= before) {
        parts = split(top->left, row);
        top->left = std::exchange(parts.second, top);
    } else {
        parts = split(top->right, row - before - 1);
        top->right = std::exchange(parts.first, top);
    }
    update(*top);
    return parts;
}

//! The larger part is more likely to become the root, as if all items had been inserted in random order.
RowLink *RowOrder::join(RowLink *left, RowLink *right)
{
    if (!left || !right) {
        return left ? left : right;
    }
    // Knuth's linear congruential generator; its upper bits are good.
    m_random = m_random * 6364136223846793005U + 1442695040888963407U;
    const auto number = qsizetype((m_random >> 33U) % quint64(left->count + right->count));
    RowLink *top = number < left->count ? left : right;
    if (top == left) {
        left->right = join(left->right, right);
    } else {
        right->left = join(left, right->left);
    }
    update(*top);
    return top;
}

void RowOrder::insert(qsizetype row, RowLink &item)
{
    const auto [before, after] = split(m_root, row);
    item = RowLink();
    setRoot(join(join(before, &item), after));
}

void RowOrder::remove(RowLink &item)
{
    RowLink *rest = join(item.left, item.right);
    RowLink *up = item.up;
    if (!up) {
        setRoot(rest);
    } else {
        (up->left == &item ? up->left : up->right) = rest;
    }
    for (; up; up = up->up) {
        update(*up);
    }
    item = RowLink();
}

} // namespace Halvane::Corvex::Designer
