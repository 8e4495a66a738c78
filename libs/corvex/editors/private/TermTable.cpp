// SPDX-License-Identifier: MIT
#include "corvex/editors/private/TermTable.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/project/Project.h"
#include "corvex/project/ProjectNames.h"
#include "corvex/values/expressions/ExpressionRules.h"
#include "corvex/widgets/Theme.h"

#include <QGuiApplication>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Info = GeneralDataInfo;

//! The largest number of rows that a paste may add.
constexpr int mostRows = 10000;

QString translated(const char *text)
{
    return LocalizationHelper::coreString(QString::fromUtf8(text));
}

//! A number as people write it: a decimal comma is understood.
std::optional<double> toNumber(QString text)
{
    bool isNumber = false;
    const double number = text.replace(u',', u'.').trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

const ExpressionPurpose termList{GeneralDataList::GeneralExpression, Info::RawOutput, true};

} // namespace

TermTable::TermTable(const std::vector<TermColumn> &columns, qsizetype head, int parameter, QObject *parent)
    : CellTable(parent)
    , m_columns(columns)
    , m_headSize(head)
    , m_entrySize(std::ranges::count_if(
          columns, [](const TermColumn &column) { return column.kind != TermColumn::Derived; }))
    , m_parameter(parameter)
{ }

void TermTable::setTerms(const GeneralDataList &terms)
{
    if (terms == this->terms() && m_refused.isEmpty()) {
        return;
    }
    beginResetModel();
    m_head.clear();
    m_entries.clear();
    m_refused.clear();
    for (qsizetype i = 0; i < terms.count(); ++i) {
        if (i < m_headSize) {
            m_head.append(terms.at(i));
        } else {
            if ((i - m_headSize) % m_entrySize == 0) {
                m_entries.append(TermColumn::Terms());
            }
            m_entries.last().append(terms.at(i));
        }
    }
    endResetModel();
}

GeneralDataList TermTable::terms() const
{
    GeneralDataList terms;
    for (const Info &term : m_head) {
        terms.append(term);
    }
    for (const TermColumn::Terms &entry : m_entries) {
        for (const Info &term : entry) {
            terms.append(term);
        }
    }
    return terms;
}

QString TermTable::error() const
{
    if (m_refused.isEmpty()) {
        return {};
    }
    const auto &[row, column] = m_refused.firstKey();
    return LocalizationHelper::coreString(u"Row %1, %2: %3"_s)
        .arg(QString::number(row + 1), translated(m_columns.at(size_t(column)).title),
             m_refused.first().error);
}

void TermTable::setHeadTerm(qsizetype place, const Info &term)
{
    while (m_head.size() < m_headSize) {
        m_head.append(Info(Info::ConstantValue, Info::IntegerData, u"0"_s));
    }
    m_head[place] = term;
}

void TermTable::setConflicts(const QHash<int, QString> &conflicts)
{
    if (m_conflicts != conflicts) {
        m_conflicts = conflicts;
        if (!m_entries.isEmpty()) {
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        }
    }
}

int TermTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int TermTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QString TermTable::print(const Info &term) const
{
    if (term.valueType() == Info::ConstantValue) {
        return term.value();
    }
    if (term.valueType() == Info::NoValue || !m_project) {
        return term.value();
    }
    GeneralDataList terms;
    terms.append(term);
    const QString text = ExpressionText::print(terms, termList, ProjectNames(*m_project));
    return text.isNull() ? term.toString() : text;
}

QString TermTable::textOf(int row, int column) const
{
    const auto refused = m_refused.constFind({row, column});
    if (refused != m_refused.cend()) {
        return refused->text;
    }
    const TermColumn &shown = m_columns.at(size_t(column));
    const TermColumn::Terms &entry = m_entries.at(row);
    return shown.kind == TermColumn::Derived ? shown.derive(entry, m_parameter) : print(entry.value(column));
}

QVariant TermTable::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const TermColumn &column = m_columns.at(size_t(index.column()));
    const auto refused = m_refused.constFind({index.row(), index.column()});
    switch (role) {
    case Qt::DisplayRole: {
        const QString text = textOf(index.row(), index.column());
        return column.display && refused == m_refused.cend() ? column.display(text) : text;
    }
    case Qt::EditRole:
        return textOf(index.row(), index.column());
    case Qt::ToolTipRole:
        return refused != m_refused.cend() ? refused->error : m_conflicts.value(index.row());
    case Qt::ForegroundRole: {
        const QPalette palette = QGuiApplication::palette();
        return refused != m_refused.cend() || m_conflicts.contains(index.row()) ? Theme::error(palette)
               : column.kind == TermColumn::Derived                             ? Theme::muted(palette)
                                                                                : QVariant();
    }
    case Qt::TextAlignmentRole:
        return QVariant(column.kind == TermColumn::Integer || column.kind == TermColumn::Number
                            ? Qt::AlignRight | Qt::AlignVCenter
                            : Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant TermTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) {
        return CellTable::headerData(section, orientation, role);
    }
    return translated(m_columns.at(size_t(section)).title);
}

Qt::ItemFlags TermTable::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = CellTable::flags(index);
    return m_isReadOnly || m_columns.at(size_t(index.column())).kind == TermColumn::Derived
               ? flags
               : flags | Qt::ItemIsEditable;
}

QStringList TermTable::choices(const QModelIndex &cell) const
{
    const TermColumn &column = m_columns.at(size_t(cell.column()));
    if (column.names) {
        return *column.names();
    }
    const bool isSource = column.kind == TermColumn::Source || column.kind == TermColumn::Value;
    return isSource && m_project ? m_project->variables()->listItemNames() : QStringList();
}

QString TermTable::continuedText(const QModelIndex &cell, int steps) const
{
    const QString text = textOf(cell.row(), cell.column());
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && m_columns.at(size_t(cell.column())).counts ? QString::number(number + steps) : text;
}

TermTable::Reading TermTable::readName(const TermColumn &column, const QString &text) const
{
    const QStringList &names = *column.names();
    const QString wanted = text.trimmed();
    const auto known = std::ranges::find_if(
        names, [&](const QString &name) { return name.compare(wanted, Qt::CaseInsensitive) == 0; });
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber);
    if (known == names.cend() && isNumber && number >= 0 && number <= column.maximum) {
        return {Info(Info::ConstantValue, Info::StringData, QString::number(number)), {}};
    }
    if (known == names.cend()) {
        return {{}, Suggestion::unknown(translated(column.title).toLower(), text, names, {})};
    }
    return {Info(Info::ConstantValue, Info::StringData, *known), {}};
}

TermTable::Reading TermTable::readSource(const TermColumn &column, const QString &text) const
{
    if (!m_project) {
        return {{}, LocalizationHelper::coreString(u"There is no project."_s)};
    }
    const ProjectNames names(*m_project);
    if (column.kind == TermColumn::Value) {
        const ExpressionText::Reading reading = ExpressionText::read(text, termList, names);
        if (!reading.error && reading.terms.count() == 1) {
            return {reading.terms.at(0), {}};
        }
    }
    if (const std::optional<Info> found = names.find(text)) {
        return {*found, {}};
    }
    return {{},
            Suggestion::unknown(LocalizationHelper::coreString(u"variable or property"_s), text,
                                names.candidates(text), {})};
}

TermTable::Reading TermTable::read(const TermColumn &column, const QString &text) const
{
    switch (column.kind) {
    case TermColumn::Integer: {
        bool isNumber = false;
        const int number = text.trimmed().toInt(&isNumber);
        if (isNumber && number >= column.minimum && number <= column.maximum) {
            return {Info(Info::ConstantValue, Info::IntegerData, QString::number(number)), {}};
        }
        return {{},
                LocalizationHelper::coreString(u"This takes a whole number from %1 to %2."_s)
                    .arg(QString::number(column.minimum), QString::number(column.maximum))};
    }
    case TermColumn::Number:
        if (const std::optional<double> number = toNumber(text)) {
            return {Info(Info::ConstantValue, Info::FloatData, QString::number(*number, 'g', 15)), {}};
        }
        return {{}, LocalizationHelper::coreString(u"This takes a number such as 0.125."_s)};
    case TermColumn::Name:
        return readName(column, text);
    case TermColumn::Source:
    case TermColumn::Value:
        return readSource(column, text);
    case TermColumn::Text:
    case TermColumn::Derived:
        break;
    }
    return {Info(Info::ConstantValue, Info::StringData, text), {}};
}

void TermTable::enterCell(const CellText &cell)
{
    const TermColumn &column = m_columns.at(size_t(cell.column));
    if (column.kind == TermColumn::Derived) {
        return;
    }
    const Reading reading = read(column, cell.text);
    if (!reading.error.isEmpty()) {
        m_refused.insert({cell.row, cell.column}, {cell.text, reading.error});
        return;
    }
    m_refused.remove({cell.row, cell.column});
    TermColumn::Terms &entry = m_entries[cell.row];
    while (entry.size() <= cell.column) { // an incomplete entry
        entry.append(read(m_columns.at(size_t(entry.size())), {}).term);
    }
    entry[cell.column] = reading.term;
}

//! The entry that probably follows the row before.
TermColumn::Terms TermTable::newEntry(int row) const
{
    TermColumn::Terms entry;
    for (int column = 0; column < int(m_entrySize); ++column) {
        const TermColumn &shown = m_columns.at(size_t(column));
        QString text = QString::fromUtf8(shown.initial);
        if (shown.counts && row > 0) {
            text = continuedText(index(row - 1, column), 1);
        }
        const bool isFirst = shown.counts && row == 0;
        entry.append(read(shown, isFirst ? QString::number(shown.minimum) : text).term);
    }
    return entry;
}

void TermTable::enterCells(const QList<CellText> &cells)
{
    if (m_isReadOnly) {
        return;
    }
    int last = rowCount() - 1;
    for (const CellText &cell : cells) {
        last = std::max(last, std::min(cell.row, mostRows - 1));
    }
    if (last >= rowCount()) {
        beginInsertRows({}, rowCount(), last);
        while (int(m_entries.size()) <= last) {
            m_entries.append(newEntry(int(m_entries.size())));
        }
        endInsertRows();
    }
    for (const CellText &cell : cells) {
        if (cell.row <= last) {
            enterCell(cell);
        }
    }
    emit dataChanged(index(0, 0), index(last, columnCount() - 1));
    emit entered();
}

void TermTable::addRow(int before)
{
    if (m_isReadOnly || rowCount() >= mostRows) {
        return;
    }
    const int row = std::clamp(before, 0, rowCount());
    beginInsertRows({}, row, row);
    m_entries.insert(row, newEntry(row));
    QMap<std::pair<int, int>, Refused> moved;
    for (const auto &[place, refused] : m_refused.asKeyValueRange()) {
        moved.insert({place.first + (place.first >= row ? 1 : 0), place.second}, refused);
    }
    m_refused = moved;
    endInsertRows();
    emit entered();
}

void TermTable::deleteRows(const QList<int> &rows)
{
    if (m_isReadOnly) {
        return;
    }
    beginResetModel();
    QList<TermColumn::Terms> kept;
    QMap<std::pair<int, int>, Refused> moved;
    auto next = rows.cbegin();
    for (int row = 0; row < int(m_entries.size()); ++row) {
        if (next != rows.cend() && *next == row) {
            ++next;
            continue;
        }
        for (int column = 0; column < columnCount(); ++column) {
            if (m_refused.contains({row, column})) {
                moved.insert({int(kept.size()), column}, m_refused.value({row, column}));
            }
        }
        kept.append(m_entries.at(row));
    }
    m_entries = kept;
    m_refused = moved;
    endResetModel();
    emit entered();
}

} // namespace Halvane::Corvex::Designer
