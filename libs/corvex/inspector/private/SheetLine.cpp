// SPDX-License-Identifier: MIT
#include "corvex/inspector/private/SheetLine.h"

#include "corvex/core/DesignerObject.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

QList<SharedProperty> SheetLine::properties() const
{
    QList<SharedProperty> all;
    for (const Cell &cell : m_cells) {
        if (cell.property) {
            all.append(cell.property);
        }
    }
    return all;
}

void SheetLine::count(const Cell &cell, const QString &value, qsizetype by)
{
    qsizetype &number = m_values[value];
    number += by;
    if (number == 0) {
        m_values.remove(value);
    }
    m_changed += cell.defaultText.isNull() || value == cell.defaultText ? 0 : by;
}

void SheetLine::add(size_t place, const SharedProperty &property, const QString &defaultText)
{
    if (place >= m_cells.size()) {
        m_cells.resize(place + 1);
    }
    Cell &cell = m_cells[place];
    cell = {property, defaultText, !property->editorParameters().value(u"visible"_s, true).toBool()};
    m_first = m_count == 0 ? place : std::min(m_first, place);
    ++m_count;
    m_hidden += cell.isHidden ? 1 : 0;
    count(cell, property->valueString(), 1);
    validityChanged(place);
}

void SheetLine::remove(size_t place)
{
    Cell &cell = m_cells[place];
    count(cell, cell.property->valueString(), -1);
    m_hidden -= cell.isHidden ? 1 : 0;
    m_invalid.erase(place);
    cell = {};
    --m_count;
    while (m_count > 0 && !m_cells[m_first].property) {
        ++m_first;
    }
}

void SheetLine::valueChanged(size_t place, const QString &previousValue)
{
    const Cell &cell = m_cells[place];
    count(cell, previousValue, -1);
    count(cell, cell.property->valueString(), 1);
}

void SheetLine::validityChanged(size_t place)
{
    if (m_cells[place].property->isValid()) {
        m_invalid.erase(place);
    } else {
        m_invalid.insert(place);
    }
}

SheetRow SheetLine::summary() const
{
    const DesignerProperty &first = *this->first();
    SheetRow row;
    row.id = m_id;
    row.kind = m_kind;
    row.title = first.name();
    row.group = first.editorParameter(u"group"_s).toString();
    row.rank = first.rank();
    row.isMixed = m_values.size() > 1;
    row.value = row.isMixed ? QString() : m_values.cbegin().key();
    row.isDefault = m_changed == 0;
    row.error = m_invalid.empty() ? QString() : m_cells[*m_invalid.begin()].property->errorString();
    row.description = first.description();
    row.isVisible = m_hidden == 0;
    row.isReadOnly = !first.hasFlag(StoredFlag) || (m_count > 1 && m_id == "id"_L1);
    row.editor = first.editor();
    row.editorParameters = first.editorParameters();
    return row;
}

} // namespace Halvane::Corvex::Designer
