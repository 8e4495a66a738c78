// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/inspector/PropertySheet.h"

#include <QHash>

#include <set>
#include <vector>

namespace Halvane::Corvex::Designer {

//! The properties with the same id and kind, for those objects of a sheet that have them. Counts common data,
//! so that a change takes the same time for any number of objects. Objects are numbered by their places in
//! the sheet.
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
    //! Null if that object has no such property.
    SharedProperty property(size_t place) const
    {
        return place < m_cells.size() ? m_cells[place].property : SharedProperty();
    }
    QList<SharedProperty> properties() const;
    //! There must be at least one.
    const SharedProperty &first() const { return m_cells[m_first].property; }

    //! \a defaultText is null if there is no default.
    void add(size_t place, const SharedProperty &property, const QString &defaultText);
    void remove(size_t place);
    void valueChanged(size_t place, const QString &previousValue);
    void validityChanged(size_t place);
    //! The summary of all properties. There must be at least one.
    SheetRow summary() const;

    //! The row in the sheet, while this line is one of its rows.
    SheetRow shown;
    //! Values that differ have changed and still differ; the views are not informed yet.
    bool isReportDue = false;

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
    QHash<QString, qsizetype> m_values; //!< the number of objects with each value
    std::set<size_t> m_invalid;
    size_t m_first = 0; //!< the first place with a property
    size_t m_count = 0;
    qsizetype m_hidden = 0;
    qsizetype m_changed = 0; //!< the number of values that differ from their default
};

} // namespace Halvane::Corvex::Designer
