// SPDX-License-Identifier: MIT
#include "corvex/inspector/private/ObjectTree.h"

#include "corvex/project/Project.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

void ObjectTree::read(Project &project)
{
    clear();
    Node &top = *m_objects.emplace(&project, std::make_unique<Node>()).first->second;
    top.object = &project;
    for (const SharedProperty &list : {project.screens(), project.variables(), project.imageResources()}) {
        Node &node = *m_lists.emplace_back(std::make_unique<Node>());
        node.list = list;
        addSection(node, list);
    }
    std::vector<Node *> lists;
    std::ranges::transform(m_lists, std::back_inserter(lists), &std::unique_ptr<Node>::get);
    adopt(top, {}, lists);
    adopt(m_root, {}, {&top});
}

void ObjectTree::clear()
{
    m_root = Node();
    m_objects.clear();
    m_lists.clear();
}

ObjectTree::Node *ObjectTree::add(DesignerObject *object)
{
    Node &node = *m_objects.insert_or_assign(object, std::make_unique<Node>()).first->second;
    node.object = object;
    for (const SharedProperty &property : object->properties()) {
        if (property->isList()) {
            addSection(node, property);
        }
    }
    return &node;
}

void ObjectTree::addSection(Node &node, const SharedProperty &list)
{
    std::vector<Node *> children;
    for (DesignerObject *item : list->listItems()) {
        children.push_back(add(item));
    }
    adopt(node, list, children);
}

void ObjectTree::adopt(Node &node, const SharedProperty &list, const std::vector<Node *> &children)
{
    for (Node *child : children) {
        child->parent = &node;
        child->section = qsizetype(node.sections.size());
    }
    const std::vector<RowLink *> rows(children.begin(), children.end());
    node.sections.push_back(Section{list, {}});
    node.sections.back().rows.assign(rows);
}

//! Deletes a row and everything below it.
void ObjectTree::forget(const Node &node)
{
    for (const Section &section : node.sections) {
        std::vector<const Node *> children;
        for (qsizetype row = 0; row < section.rows.count(); ++row) {
            children.push_back(static_cast<const Node *>(section.rows.at(row)));
        }
        for (const Node *child : children) {
            forget(*child);
        }
    }
    m_objects.erase(node.object);
}

ObjectTree::Node *ObjectTree::nodeOf(const DesignerObject *object) const
{
    const auto found = m_objects.find(object);
    return found == m_objects.end() ? nullptr : found->second.get();
}

ObjectTree::Node *ObjectTree::nodeOf(const SharedProperty &list) const
{
    const auto found = std::ranges::find(m_lists, list, [](const auto &node) { return node->list; });
    return found == m_lists.end() ? nullptr : found->get();
}

ObjectTree::Branch ObjectTree::branchOf(const SharedProperty &list) const
{
    Node *node = nodeOf(list);
    node = node ? node : nodeOf(list->parentObject());
    if (!node) {
        return {};
    }
    Branch branch{node};
    for (const Section &section : node->sections) {
        if (section.list == list) {
            return branch;
        }
        branch.firstRow += section.rows.count();
        ++branch.section;
    }
    return {};
}

qsizetype ObjectTree::rowOf(const Node &node)
{
    qsizetype row = RowOrder::rowOf(node);
    for (qsizetype i = 0; i < node.section; ++i) {
        row += node.parent->sections[size_t(i)].rows.count();
    }
    return row;
}

qsizetype ObjectTree::childCount(const Node &node)
{
    qsizetype count = 0;
    for (const Section &section : node.sections) {
        count += section.rows.count();
    }
    return count;
}

ObjectTree::Node *ObjectTree::child(const Node &node, qsizetype row)
{
    for (const Section &section : node.sections) {
        if (row >= 0 && row < section.rows.count()) {
            return static_cast<Node *>(section.rows.at(row));
        }
        row -= section.rows.count();
    }
    return nullptr;
}

void ObjectTree::insert(const Branch &branch, qsizetype index, DesignerObject *object)
{
    Node *node = add(object);
    node->parent = branch.node;
    node->section = branch.section;
    branch.rows().insert(index, *node);
}

void ObjectTree::remove(Node &node)
{
    node.parent->sections[size_t(node.section)].rows.remove(node);
    forget(node);
}

void ObjectTree::move(const Branch &branch, qsizetype from, qsizetype to)
{
    RowLink *item = branch.rows().at(from);
    branch.rows().remove(*item);
    branch.rows().insert(to, *item);
}

void ObjectTree::reorder(const Branch &branch, const QList<DesignerObject *> &order)
{
    std::vector<RowLink *> rows;
    for (const DesignerObject *object : order) {
        rows.push_back(nodeOf(object));
    }
    branch.rows().assign(rows);
}

} // namespace Halvane::Corvex::Designer
