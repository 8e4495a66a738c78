// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/inspector/PropertySheet.h"

#include <QHash>

#include <set>
#include <vector>

namespace Halvane::Corvex::Designer {

class DefaultValues;

//! The properties with the same id and kind, for those objects of a sheet that have them. Counts common data,
//! so that a change takes the same time for any number of objects. Objects are numbered by their places in
//! the sheet.
class SheetLine
{
public:
    //! \a count is the expected number of objects. The defaults must outlive the line.
    SheetLine(const QString &id, const QString &kind, size_t count, DefaultValues &defaults)
        : m_id(id)
        , m_kind(kind)
        , m_defaults(defaults)
    {
        m_cells.reserve(count);
    }

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

    //! \a className is that of the object.
    void add(size_t place, SharedProperty property, const QString &className);
    void remove(size_t place);
    void valueChanged(size_t place, const QString &previousValue);
    void validityChanged(size_t place);
    //! The summary of all properties. There must be at least one.
    SheetRow summary();

    //! The row in the sheet, while this line is one of its rows.
    SheetRow shown;
    //! Values that differ have changed and still differ; the views are not informed yet.
    bool isReportDue = false;

private:
    struct Cell
    {
        SharedProperty property;
        bool isHidden = false;
        bool isChanged = false; //!< the value is not the default
    };

    void count(const QString &value, qsizetype by);
    void countRun();
    bool isChanged(const DesignerProperty &property, const QString &value, const QString &className);
    void setChanged(Cell &cell, bool isChanged);

    QString m_id;
    QString m_kind;
    DefaultValues &m_defaults;
    std::vector<Cell> m_cells;          //!< by place; empty where an object has no such property
    QHash<QString, qsizetype> m_values; //!< the number of objects with each value, without the run
    //! Objects usually have the same value as the object before: such a run is counted once.
    QString m_runValue;
    qsizetype m_runLength = 0;
    QString m_defaultClass; //!< the class of the last object
    QString m_defaultText;  //!< of that class
    std::set<size_t> m_invalid;
    size_t m_first = 0; //!< the first place with a property
    size_t m_count = 0;
    qsizetype m_hidden = 0;
    qsizetype m_changed = 0; //!< the number of values that differ from their default
};

} // namespace Halvane::Corvex::Designer
