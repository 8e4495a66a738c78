// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/inspector/PropertySheet.h"
#include "corvex/inspector/private/SheetObjects.h"

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
    SheetLine(const QString &id, const QString &kind, size_t count, const SheetObjects &objects,
              DefaultValues &defaults);

    const QString &id() const { return m_id; }
    const QString &kind() const { return m_kind; }
    size_t count() const { return m_count; }
    //! Null if that object has no such property.
    SharedProperty property(size_t place) const
    {
        return place < m_cells.size() && m_cells[place].isUsed
                   ? m_objects.at(place)->properties().at(m_cells[place].index)
                   : SharedProperty();
    }
    QList<SharedProperty> properties() const;
    //! There must be at least one.
    SharedProperty first() const { return property(m_first); }

    //! Whether all that counts is equal to the property that was added last, as in objects of a class that
    //! nobody has changed.
    bool isRepeatedBy(size_t place, const DesignerProperty &property) const
    {
        return m_last && place >= m_cells.size() && property.isUntouchedLike(*m_last);
    }
    // \a index is that of the property in its object.
    //! Adds a property that repeats the last one.
    void addRepeated(size_t place, qsizetype index, const DesignerProperty &property)
    {
        Cell cell = m_cells.back();
        cell.index = quint16(index);
        m_cells.resize(place); // objects between them have no such property
        m_cells.push_back(cell);
        ++m_count;
        ++m_runLength;
        m_hidden += cell.isHidden ? 1 : 0;
        m_changed += cell.isChanged ? 1 : 0;
        if (!property.isValid()) {
            m_invalid.insert(place);
        }
        m_last = &property;
    }
    //! \a className is that of the object.
    void add(size_t place, qsizetype index, const DesignerProperty &property, const QString &className);
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
        quint16 index = 0; //!< in the properties of the object
        bool isUsed = false;
        bool isHidden = false;
        bool isChanged = false; //!< the value is not the default
    };

    //! What makes values equal: the text or, for names, only the name, which costs much less.
    QString keyOf(const DesignerProperty &property) const;
    QString keyOf(const QString &value) const;
    void count(const QString &key, qsizetype by);
    void countRun();
    Cell &insert(size_t place, qsizetype index, bool isHidden);
    bool isChanged(const DesignerProperty &property, const QString &key, const QString &className);
    void setChanged(Cell &cell, bool isChanged);

    QString m_id;
    QString m_kind;
    bool m_isName;
    const SheetObjects &m_objects;
    DefaultValues &m_defaults;
    std::vector<Cell> m_cells;          //!< by place; empty where an object has no such property
    QHash<QString, qsizetype> m_values; //!< the number of objects with each keyOf(), without the run
    //! Objects usually have the same value as the object before: such a run is counted once.
    QString m_runValue;
    qsizetype m_runLength = 0;
    //! The property that was added last, in the last cell, and is counted in the run; null after any other
    //! change.
    const DesignerProperty *m_last = nullptr;
    QString m_defaultClass; //!< the class of the last object
    QString m_defaultKey;   //!< of that class
    std::set<size_t> m_invalid;
    size_t m_first = 0; //!< the first place with a property
    size_t m_count = 0;
    qsizetype m_hidden = 0;
    qsizetype m_changed = 0; //!< the number of values that differ from their default
};

} // namespace Halvane::Corvex::Designer
