// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/TestValues.h"

#include "corvex/common/LocalizationHelper.h"

#include <QFont>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

void TestValues::follow(const ExpressionScope &scope, const GeneralDataList &terms)
{
    QList<GeneralDataInfo> names;
    for (const GeneralDataInfo &term : terms) {
        const bool isName = term.valueType() == GeneralDataInfo::VariableValue
                            || term.valueType() == GeneralDataInfo::ObjectValue;
        const bool isKnown = std::ranges::any_of(
            names, [&term](const GeneralDataInfo &name) { return name.value() == term.value(); });
        if (isName && !isKnown && term.dataType() != GeneralDataInfo::LogData) {
            names.append(term);
        }
    }
    m_scope = scope;
    if (names != m_names) {
        beginResetModel();
        m_names = names;
        endResetModel();
    }
}

void TestValues::refresh()
{
    if (!m_names.isEmpty()) {
        emit dataChanged(index(0, ValueColumn), index(rowCount() - 1, ValueColumn));
    }
}

bool TestValues::isLive() const
{
    return std::ranges::any_of(m_names, [this](const GeneralDataInfo &name) {
        return !m_given.contains(name.value()) && m_scope.isLive(name);
    });
}

int TestValues::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_names.size());
}

int TestValues::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TestValues::data(const QModelIndex &index, int role) const
{
    const GeneralDataInfo &name = m_names.at(index.row());
    if (role == Qt::FontRole && index.column() == ValueColumn && m_given.contains(name.value())) {
        QFont font;
        font.setBold(true);
        return font;
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole) {
        return {};
    }
    switch (index.column()) {
    case NameColumn:
        return name.value();
    case TypeColumn:
        return ExpressionScope::nameOf(name.dataType());
    default:
        return m_given.value(name.value(), m_scope.valueOf(name));
    }
}

//! An empty text restores the value of the project.
bool TestValues::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || index.column() != ValueColumn) {
        return false;
    }
    const QString &name = m_names.at(index.row()).value();
    const QString text = value.toString();
    if (text.isEmpty() || text == m_scope.valueOf(m_names.at(index.row()))) {
        m_given.remove(name);
    } else {
        m_given.insert(name, text);
    }
    emit dataChanged(index, index);
    emit valueEntered();
    return true;
}

QVariant TestValues::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation == Qt::Vertical) {
        return {};
    }
    const QString titles[] = {u"Name"_s, u"Type"_s, u"Test Value"_s};
    return LocalizationHelper::coreString(titles[section]);
}

Qt::ItemFlags TestValues::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == ValueColumn ? shown | Qt::ItemIsEditable : shown;
}

} // namespace Halvane::Corvex::Designer
