// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ModelObservers.h"
#include "corvex/project/Project.h"

#include <QHash>
#include <QSet>

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer::Test {

//! A copy of a whole project that is only updated by notifications. Places are lists and indexes, as in an
//! item model. Checks that "about to" comes before the change and the counterpart after it.
class ModelMirror : public ModelObserver
{
public:
    explicit ModelMirror(Project &project)
        : m_project(&project)
        , m_root(read(&project))
    {
        project.observers().add(this);
    }

    //! The first difference between the copy and the project; empty if they are equal.
    QString difference() const
    {
        return m_root ? difference(*m_root, m_project) : QStringLiteral("There is no copy.");
    }

    //! The operations that were called.
    QSet<QByteArray> heard;

    void valueChanged(const SharedProperty &property, const QString &previousValue) override
    {
        heard.insert("valueChanged");
        Row &row = rowOf(property);
        EXPECT_EQ(row.value, previousValue) << path(property);
        EXPECT_NE(property->valueString(), previousValue) << path(property);
        row.value = property->valueString();
    }

    void aboutToInsert(const SharedProperty &list, qsizetype index, DesignerObject *object) override
    {
        EXPECT_EQ(order(list), childrenIn(list)) << path(list);
        EXPECT_EQ(object->project(), nullptr);
        EXPECT_TRUE(index >= 0 && index <= childrenIn(list).size());
        begin(list, index);
    }
    void inserted(const SharedProperty &list, qsizetype index, DesignerObject *object) override
    {
        heard.insert("inserted");
        end(list, index);
        EXPECT_EQ(childrenIn(list).value(index), object) << path(list);
        EXPECT_EQ(object->project(), m_project);
        Nodes &nodes = rowOf(list).children;
        nodes.insert(nodes.begin() + index, read(object));
    }
    void aboutToRemove(const SharedProperty &list, qsizetype index, DesignerObject *object) override
    {
        EXPECT_EQ(order(list), childrenIn(list)) << path(list);
        EXPECT_EQ(order(list).value(index), object) << path(list);
        EXPECT_EQ(object->project(), m_project);
        begin(list, index);
    }
    void removed(const SharedProperty &list, qsizetype index, DesignerObject *object) override
    {
        heard.insert("removed");
        end(list, index);
        EXPECT_FALSE(childrenIn(list).contains(object)) << path(list);
        Nodes &nodes = rowOf(list).children;
        forget(*nodes.at(size_t(index)));
        nodes.erase(nodes.begin() + index);
    }
    void aboutToMove(const SharedProperty &list, qsizetype from, qsizetype to) override
    {
        EXPECT_EQ(order(list), childrenIn(list)) << path(list);
        EXPECT_NE(from, to);
        begin(list, from);
    }
    void moved(const SharedProperty &list, qsizetype from, qsizetype to) override
    {
        heard.insert("moved");
        end(list, from);
        Nodes &nodes = rowOf(list).children;
        std::unique_ptr<Node> node = std::move(nodes.at(size_t(from)));
        nodes.erase(nodes.begin() + from);
        nodes.insert(nodes.begin() + to, std::move(node));
        EXPECT_EQ(order(list), childrenIn(list)) << path(list);
    }
    void aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                        DesignerObject *newObject) override
    {
        EXPECT_EQ(order(list), childrenIn(list)) << path(list);
        EXPECT_EQ(order(list).value(index), oldObject);
        EXPECT_EQ(newObject->project(), nullptr);
        begin(list, index);
    }
    void replaced(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                  DesignerObject *newObject) override
    {
        heard.insert("replaced");
        end(list, index);
        EXPECT_EQ(childrenIn(list).value(index), newObject);
        EXPECT_EQ(oldObject->project(), nullptr);
        std::unique_ptr<Node> &node = rowOf(list).children.at(size_t(index));
        forget(*node);
        node = read(newObject);
    }
    void aboutToReorder(const SharedProperty &list) override
    {
        EXPECT_EQ(order(list), childrenIn(list)) << path(list);
        begin(list, -1);
    }
    void reordered(const SharedProperty &list) override
    {
        heard.insert("reordered");
        end(list, -1);
        Nodes &nodes = rowOf(list).children;
        QHash<const DesignerObject *, qsizetype> places;
        for (const DesignerObject *child : childrenIn(list)) {
            places.insert(child, places.size());
        }
        std::ranges::sort(nodes, {}, [&places](const auto &node) { return places.value(node->object, -1); });
        EXPECT_EQ(order(list), childrenIn(list)) << path(list);
    }

    void validityChanged(const SharedProperty &property) override
    {
        heard.insert("validityChanged");
        Row &row = rowOf(property);
        row.failure = property->failure();
        row.error = property->errorString();
    }
    void objectValidityChanged(DesignerObject *object) override
    {
        heard.insert("objectValidityChanged");
        Node *node = m_nodes.value(object);
        ASSERT_TRUE(node);
        node->isValid = object->isValid();
    }
    void descriptorChanged(const SharedProperty &property) override
    {
        heard.insert("descriptorChanged");
        Row &row = rowOf(property);
        EXPECT_NE(row.description, describe(*property)) << path(property);
        row.description = describe(*property);
    }

    void projectAboutToLoad() override
    {
        EXPECT_EQ(difference(), QString());
        forget(*m_root);
        m_root.reset();
    }
    void projectLoaded() override
    {
        heard.insert("projectLoaded");
        EXPECT_TRUE(m_nodes.isEmpty());
        m_root = read(m_project);
    }
    void projectSaved() override { heard.insert("projectSaved"); }
    void projectAboutToBeDestroyed() override
    {
        heard.insert("projectAboutToBeDestroyed");
        EXPECT_EQ(difference(), QString());
    }

private:
    struct Node;
    using Nodes = std::vector<std::unique_ptr<Node>>;
    struct Row
    {
        QString value;
        QString description;
        DesignerProperty::Failure failure = DesignerProperty::Failure::None;
        QString error;
        Nodes children;
    };
    struct Node
    {
        const DesignerObject *object = nullptr;
        bool isValid = true;
        std::map<QString, Row> rows; //!< by property id
    };

    static QList<const DesignerObject *> childrenIn(const SharedProperty &list)
    {
        QList<const DesignerObject *> children;
        for (const DesignerObject *item : list->listItems()) {
            children.append(item);
        }
        if (list->objectValue()) {
            children.append(list->objectValue());
        }
        return children;
    }
    QList<const DesignerObject *> order(const SharedProperty &list)
    {
        QList<const DesignerObject *> children;
        for (const std::unique_ptr<Node> &node : rowOf(list).children) {
            children.append(node->object);
        }
        return children;
    }
    static std::string path(const SharedProperty &property)
    {
        return (property->parentObject()->objectPath() + QLatin1Char('.') + property->id()).toStdString();
    }
    static QString textOf(const DesignerProperty &property)
    {
        return property.isList() || property.isObject() ? QString() : property.valueString();
    }
    static QString describe(const DesignerProperty &property)
    {
        QString text = property.name() + QString::number(property.flags().toInt()) + property.editor();
        for (const auto &[key, value] : property.editorParameters().asKeyValueRange()) {
            text += key + value.toString();
        }
        return text;
    }

    //! The row of the notified property. Its object must be in the copy.
    Row &rowOf(const SharedProperty &property)
    {
        static Row none;
        Node *node = m_nodes.value(property->parentObject());
        EXPECT_TRUE(node) << path(property);
        return node ? node->rows[property->id()] : none;
    }
    void begin(const SharedProperty &list, qsizetype index)
    {
        EXPECT_EQ(m_begunList, nullptr) << "of two changes one ends before the other begins";
        m_begunList = list;
        m_begunIndex = index;
    }
    void end(const SharedProperty &list, qsizetype index)
    {
        EXPECT_EQ(m_begunList, list) << path(list);
        EXPECT_EQ(m_begunIndex, index) << path(list);
        m_begunList = nullptr;
    }

    std::unique_ptr<Node> read(const DesignerObject *object)
    {
        auto node = std::make_unique<Node>();
        node->object = object;
        node->isValid = object->isValid();
        for (const SharedProperty &property : object->properties()) {
            Row &row = node->rows[property->id()];
            row.value = textOf(*property);
            row.description = describe(*property);
            row.failure = property->failure();
            row.error = property->errorString();
            for (const DesignerObject *child : childrenIn(property)) {
                row.children.push_back(read(child));
            }
        }
        m_nodes.insert(object, node.get());
        return node;
    }
    void forget(const Node &node)
    {
        m_nodes.remove(node.object);
        for (const auto &[id, row] : node.rows) {
            for (const std::unique_ptr<Node> &child : row.children) {
                forget(*child);
            }
        }
    }

    QString difference(const Node &node, const DesignerObject *object) const
    {
        if (node.object != object || node.isValid != object->isValid()) {
            return QStringLiteral("another object, or another validity: ") + object->objectPath();
        }
        for (const SharedProperty &property : object->properties()) {
            const Row *found = &node.rows.at(property->id());
            const QString place = QString::fromStdString(path(property));
            if (found->value != textOf(*property) || found->failure != property->failure()
                || found->description != describe(*property)) {
                return QStringLiteral("%1: %2, not %3, or its validity or description")
                    .arg(place, textOf(*property), found->value);
            }
            const QList<const DesignerObject *> children = childrenIn(property);
            if (size_t(children.size()) != found->children.size()) {
                return place + QStringLiteral(": the number of children");
            }
            for (qsizetype i = 0; i < children.size(); ++i) {
                const QString inChild = difference(*found->children.at(size_t(i)), children.at(i));
                if (!inChild.isEmpty()) {
                    return inChild;
                }
            }
        }
        return {};
    }

    Project *m_project;
    QHash<const DesignerObject *, Node *> m_nodes;
    std::unique_ptr<Node> m_root;
    SharedProperty m_begunList;
    qsizetype m_begunIndex = -1;
};

} // namespace Halvane::Corvex::Designer::Test
