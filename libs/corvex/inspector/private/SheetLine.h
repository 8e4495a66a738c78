// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/inspector/PropertySheet.h"

#include <QHash>

#include <set>
#include <vector>

namespace Halvane::Corvex::Designer {

/*! The properties of one id and kind, of those objects of a sheet that have it. It counts what they have in
    common, so that a change costs the same for any number of objects. Objects are numbered by their places in
    the sheet. */
class SheetLine
{
public:
    SheetLine(const QString &id, const QString &kind)
        : m_id(id)
        , m_kind(kind)
    { }

    const QString &id() const { return m_id; }
    const QString &kind() const { return m_kind; }
    size_t count() const { return m_count; }
    //! Null if that object has none.
    SharedProperty property(size_t place) const
    {
        return place < m_cells.size() ? m_cells[place].property : SharedProperty();
    }
    QList<SharedProperty> properties() const;

    //! \a defaultText is null without a default.
    void add(size_t place, const SharedProperty &property, const QString &defaultText);
    void remove(size_t place);
    void valueChanged(size_t place, const QString &previousValue);
    void validityChanged(size_t place);
    //! All of it together. There must be a property.
    SheetRow summary() const;

    //! What the sheet shows, as long as this is one of its rows.
    SheetRow shown;

private:
    struct Cell
    {
        SharedProperty property;
        QString defaultText;
        bool isHidden = false;
    };

    void count(const Cell &cell, const QString &value, qsizetype by);

    QString m_id;
    QString m_kind;
    std::vector<Cell> m_cells;          //!< by place; empty where an object has no such property
    QHash<QString, qsizetype> m_values; //!< how many have each value
    std::set<size_t> m_invalid;
    size_t m_first = 0; //!< the first place with a property
    size_t m_count = 0;
    qsizetype m_hidden = 0;
    qsizetype m_changed = 0; //!< how many do not have their default
};

} // namespace Halvane::Corvex::Designer
