// SPDX-License-Identifier: MIT
#include "corvex/inspector/private/SheetLine.h"

#include "corvex/core/DesignerObject.h"
#include "corvex/core/properties/IdentifierProperty.h"
#include "corvex/inspector/private/DefaultValues.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

SheetLine::SheetLine(const QString &id, const QString &kind, size_t count, const SheetObjects &objects,
                     DefaultValues &defaults)
    : m_id(id)
    , m_kind(kind)
    , m_isName(kind == IdentifierProperty::kindName())
    , m_objects(objects)
    , m_defaults(defaults)
{
    m_cells.reserve(count);
}

QString SheetLine::keyOf(const DesignerProperty &property) const
{
    return m_isName ? static_cast<const IdentifierProperty &>(property).value().name()
                    : property.valueString();
}

QString SheetLine::keyOf(const QString &value) const
{
    return m_isName ? IdentifierInfo(value).name() : value;
}

QList<SharedProperty> SheetLine::properties() const
{
    QList<SharedProperty> all;
    all.reserve(qsizetype(m_count));
    for (size_t place = m_first; place < m_cells.size(); ++place) {
        if (m_cells[place].isUsed) {
            all.append(property(place));
        }
    }
    return all;
}

void SheetLine::count(const QString &key, qsizetype by)
{
    if (key != m_runValue) {
        countRun();
        m_runValue = key;
    }
    m_runLength += by;
}

void SheetLine::countRun()
{
    if (m_runLength != 0) {
        if (m_isName && m_values.size() == 1) {
            m_values.reserve(qsizetype(m_cells.capacity())); // names usually all differ
        }
        qsizetype &number = m_values[m_runValue];
        number += m_runLength;
        if (number == 0) {
            m_values.remove(m_runValue);
        }
        m_runLength = 0;
    }
}

bool SheetLine::isChanged(const DesignerProperty &property, const QString &key, const QString &className)
{
    if (!property.hasFlag(StoredFlag)) {
        return false;
    }
    if (m_defaultClass != className) {
        m_defaultClass = className;
        const QString text = m_defaults.of(property);
        m_defaultKey = text.isNull() ? text : keyOf(text);
    }
    return !m_defaultKey.isNull() && key != m_defaultKey;
}

void SheetLine::setChanged(Cell &cell, bool isChanged)
{
    m_changed += int(isChanged) - int(cell.isChanged);
    cell.isChanged = isChanged;
}

SheetLine::Cell &SheetLine::insert(size_t place, qsizetype index, bool isHidden)
{
    if (place >= m_cells.size()) {
        m_cells.resize(place + 1);
    }
    Cell &cell = m_cells[place];
    cell = {quint16(index), true, isHidden, false};
    m_first = m_count == 0 ? place : std::min(m_first, place);
    ++m_count;
    m_hidden += isHidden ? 1 : 0;
    return cell;
}

void SheetLine::add(size_t place, qsizetype index, const DesignerProperty &property, const QString &className)
{
    const QVariantMap &parameters = property.editorParameters();
    const bool isHidden = !parameters.isEmpty() && !parameters.value(u"visible"_s, true).toBool();
    const QString key = keyOf(property);
    count(key, 1);
    setChanged(insert(place, index, isHidden), isChanged(property, key, className));
    if (!property.isValid()) {
        m_invalid.insert(place);
    }
    m_last = place + 1 == m_cells.size() ? &property : nullptr;
}

void SheetLine::remove(size_t place)
{
    m_last = nullptr;
    Cell &cell = m_cells[place];
    count(keyOf(*property(place)), -1);
    setChanged(cell, false);
    m_hidden -= cell.isHidden ? 1 : 0;
    m_invalid.erase(place);
    cell = {};
    --m_count;
    while (m_count > 0 && !m_cells[m_first].isUsed) {
        ++m_first;
    }
}

void SheetLine::valueChanged(size_t place, const QString &previousValue)
{
    m_last = nullptr;
    const SharedProperty property = this->property(place);
    const QString key = keyOf(*property);
    count(keyOf(previousValue), -1);
    count(key, 1);
    setChanged(m_cells[place], isChanged(*property, key, property->parentObject()->className()));
}

void SheetLine::validityChanged(size_t place)
{
    m_last = nullptr;
    if (property(place)->isValid()) {
        m_invalid.erase(place);
    } else {
        m_invalid.insert(place);
    }
}

SheetRow SheetLine::summary()
{
    countRun();
    const SharedProperty property = this->first();
    const DesignerProperty &first = *property;
    SheetRow row;
    row.id = m_id;
    row.kind = m_kind;
    row.title = first.name();
    row.group = first.editorParameter(u"group"_s).toString();
    row.rank = first.rank();
    row.isMixed = m_values.size() > 1;
    row.value = row.isMixed ? QString() : first.valueString();
    row.isDefault = m_changed == 0;
    row.error = m_invalid.empty() ? QString() : this->property(*m_invalid.begin())->errorString();
    row.description = first.description();
    row.isVisible = m_hidden == 0;
    row.isReadOnly = !first.hasFlag(StoredFlag) || (m_count > 1 && m_id == "id"_L1);
    row.editor = first.editor();
    row.editorParameters = first.editorParameters();
    return row;
}

} // namespace Halvane::Corvex::Designer
