// SPDX-License-Identifier: MIT
#include "corvex/inspector/private/SheetLine.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/inspector/private/DefaultValues.h"

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

void SheetLine::count(const QString &value, qsizetype by)
{
    if (value != m_runValue) {
        countRun();
        m_runValue = value;
    }
    m_runLength += by;
}

void SheetLine::countRun()
{
    if (m_runLength != 0) {
        qsizetype &number = m_values[m_runValue];
        number += m_runLength;
        if (number == 0) {
            m_values.remove(m_runValue);
        }
        m_runLength = 0;
    }
}

bool SheetLine::isChanged(const DesignerProperty &property, const QString &value, const QString &className)
{
    if (!property.hasFlag(StoredFlag)) {
        return false;
    }
    if (m_defaultClass != className) {
        m_defaultClass = className;
        m_defaultText = m_defaults.of(property);
    }
    return !m_defaultText.isNull() && value != m_defaultText;
}

void SheetLine::setChanged(Cell &cell, bool isChanged)
{
    m_changed += int(isChanged) - int(cell.isChanged);
    cell.isChanged = isChanged;
}

void SheetLine::add(size_t place, SharedProperty property, const QString &className)
{
    if (place >= m_cells.size()) {
        m_cells.resize(place + 1);
    }
    Cell &cell = m_cells[place];
    cell.property = std::move(property);
    const QVariantMap &parameters = cell.property->editorParameters();
    cell.isHidden = !parameters.isEmpty() && !parameters.value(u"visible"_s, true).toBool();
    m_first = m_count == 0 ? place : std::min(m_first, place);
    ++m_count;
    m_hidden += cell.isHidden ? 1 : 0;
    const QString value = cell.property->valueString();
    count(value, 1);
    setChanged(cell, isChanged(*cell.property, value, className));
    if (!cell.property->isValid()) {
        m_invalid.insert(place);
    }
}

void SheetLine::remove(size_t place)
{
    Cell &cell = m_cells[place];
    count(cell.property->valueString(), -1);
    setChanged(cell, false);
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
    Cell &cell = m_cells[place];
    const QString value = cell.property->valueString();
    count(previousValue, -1);
    count(value, 1);
    setChanged(cell, isChanged(*cell.property, value, cell.property->parentObject()->className()));
}

void SheetLine::validityChanged(size_t place)
{
    if (m_cells[place].property->isValid()) {
        m_invalid.erase(place);
    } else {
        m_invalid.insert(place);
    }
}

SheetRow SheetLine::summary()
{
    countRun();
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
