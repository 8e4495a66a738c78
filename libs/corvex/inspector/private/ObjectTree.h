// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"
#include "corvex/inspector/private/RowOrder.h"

#include <QList>

#include <memory>
#include <unordered_map>
#include <vector>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;

//! The rows of an ObjectTreeModel. They are only updated by notifications and never read from the project, so
//! they are consistent at any time, even during a change.
class ObjectTree
{
    Q_DISABLE_COPY_MOVE(ObjectTree)

public:
    //! Children that are the items of one list.
    struct Section
    {
        SharedProperty list; //!< null for the rows of the project's lists
        RowOrder rows;
    };
    //! A row: an object, or a list of the project.
    struct Node : RowLink
    {
        DesignerObject *object = nullptr; //!< null for a list
        SharedProperty list;              //!< null for an object
        Node *parent = nullptr;           //!< null only for the root
        qsizetype section = 0;            //!< of the parent
        std::vector<Section> sections;
    };
    //! Where the items of a list are.
    struct Branch
    {
        Node *node = nullptr; //!< null for a list whose items have no rows
        qsizetype section = 0;
        qsizetype firstRow = 0;

        RowOrder &rows() const { return node->sections[size_t(section)].rows; }
    };

    ObjectTree() = default;

    //! Has no row itself. The project is its only child.
    Node &root() { return m_root; }
    void read(Project &project);
    void clear();

    //! Null if the object has no row.
    Node *nodeOf(const DesignerObject *object) const;
    //! The row of a list of the project; null for any other list.
    Node *nodeOf(const SharedProperty &list) const;
    Branch branchOf(const SharedProperty &list) const;

    static qsizetype rowOf(const Node &node);
    static qsizetype childCount(const Node &node);
    //! Null if there is no such row.
    static Node *child(const Node &node, qsizetype row);

    void insert(const Branch &branch, qsizetype index, DesignerObject *object);
    void remove(Node &node);
    static void move(const Branch &branch, qsizetype from, qsizetype to);
    void reorder(const Branch &branch, const QList<DesignerObject *> &order);

private:
    Node *add(DesignerObject *object);
    void addSection(Node &node, const SharedProperty &list);
    void adopt(Node &node, const SharedProperty &list, const std::vector<Node *> &children);
    void forget(const Node &node);

    Node m_root;
    std::unordered_map<const DesignerObject *, std::unique_ptr<Node>> m_objects;
    std::vector<std::unique_ptr<Node>> m_lists;
};

} // namespace Halvane::Corvex::Designer
