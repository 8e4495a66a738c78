// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>

#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer::Test {

//! A copy of an item model that changes by its signals alone, as a careful view would. What it holds differs
//! from the model when a signal was missing, or named the wrong rows or roles.
class ViewMirror : public QObject
{
public:
    //! Holds these roles of every index.
    ViewMirror(const QAbstractItemModel &model, const QList<int> &roles)
        : m_model(model)
        , m_roles(roles)
    {
        using Model = QAbstractItemModel;
        read({}, m_root);
        connect(&model, &Model::rowsInserted, this, [this](const QModelIndex &parent, int first, int last) {
            Item &owner = at(parent);
            for (int row = first; row <= last; ++row) {
                read(row, parent, **owner.children.insert(owner.children.begin() + row, newItem()));
            }
        });
        connect(&model, &Model::rowsRemoved, this, [this](const QModelIndex &parent, int first, int last) {
            Items &items = at(parent).children;
            items.erase(items.begin() + first, items.begin() + last + 1);
        });
        connect(&model, &Model::rowsMoved, this,
                [this](const QModelIndex &parent, int first, int, const QModelIndex &, int before) {
                    Items &items = at(parent).children;
                    std::unique_ptr<Item> moved = std::move(items.at(size_t(first)));
                    items.erase(items.begin() + first);
                    items.insert(items.begin() + (before > first ? before - 1 : before), std::move(moved));
                });
        connect(&model, &Model::layoutChanged, this, [this](const QList<QPersistentModelIndex> &parents) {
            for (const QPersistentModelIndex &parent : parents) {
                at(parent).children.clear();
                read(parent, at(parent));
            }
        });
        connect(&model, &Model::modelReset, this, [this] {
            m_root.children.clear();
            read({}, m_root);
        });
        connect(&model, &Model::dataChanged, this,
                [this](const QModelIndex &first, const QModelIndex &last, const QList<int> &changed) {
                    ++changes;
                    for (int row = first.row(); row <= last.row(); ++row) {
                        Item &item = *at(first.parent()).children.at(size_t(row));
                        for (int column = first.column(); column <= last.column(); ++column) {
                            readValues(first.sibling(row, column), changed, item);
                        }
                    }
                });
    }

    //! Rows and values, one row per line, for comparisons.
    QStringList lines() const
    {
        QStringList all;
        print(m_root, 0, all);
        return all;
    }
    //! The same of a model as it is.
    static QStringList linesOf(const QAbstractItemModel &model, const QList<int> &roles)
    {
        return ViewMirror(model, roles).lines();
    }

    //! How often data changed.
    int changes = 0;

private:
    struct Item;
    using Items = std::vector<std::unique_ptr<Item>>;
    struct Item
    {
        QHash<int, QString> values; //!< by role and column
        Items children;
    };

    static std::unique_ptr<Item> newItem() { return std::make_unique<Item>(); }
    static QString textOf(const QVariant &value)
    {
        if (value.canConvert<QObject *>()) {
            return QString::number(quintptr(value.value<QObject *>()));
        }
        if (value.canConvert<QString>()) {
            return value.toString();
        }
        QString text;
        QDebug(&text) << value;
        return text;
    }
    Item &at(const QModelIndex &index)
    {
        return index.isValid() ? *at(index.parent()).children.at(size_t(index.row())) : m_root;
    }
    void readValues(const QModelIndex &index, const QList<int> &changed, Item &item) const
    {
        for (const int role : m_roles) {
            if (changed.isEmpty() || changed.contains(role)) {
                item.values.insert(role * 8 + index.column(), textOf(index.data(role)));
            }
        }
    }
    void read(int row, const QModelIndex &parent, Item &item) const
    {
        for (int column = 0; column < m_model.columnCount(parent); ++column) {
            readValues(m_model.index(row, column, parent), {}, item);
        }
        read(m_model.index(row, 0, parent), item);
    }
    void read(const QModelIndex &parent, Item &item) const
    {
        for (int row = 0; row < m_model.rowCount(parent); ++row) {
            read(row, parent, *item.children.emplace_back(newItem()));
        }
    }
    void print(const Item &item, int depth, QStringList &all) const
    {
        for (const std::unique_ptr<Item> &child : item.children) {
            QString line(depth, u' ');
            for (const int role : m_roles) {
                line += child->values.value(role * 8) + u' ' + child->values.value(role * 8 + 1) + u'|';
            }
            all.append(line);
            print(*child, depth + 1, all);
        }
    }

    const QAbstractItemModel &m_model;
    QList<int> m_roles;
    Item m_root;
};

} // namespace Halvane::Corvex::Designer::Test
