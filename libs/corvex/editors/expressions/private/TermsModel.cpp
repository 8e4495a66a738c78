// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/TermsModel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Info = GeneralDataInfo;

struct KindWord
{
    const char16_t *word;
    Info::ValueType kind;
    Info::DataType initialType;
};

constexpr KindWord kinds[] = {
    {u"constant", Info::ConstantValue, Info::IntegerData},
    {u"variable", Info::VariableValue, Info::NumberData},
    {u"property", Info::ObjectValue, Info::NumberData},
    {u"operator", Info::OperatorValue, Info::OperatorData},
    {u"function", Info::FunctionValue, Info::FunctionData},
    {u"command", Info::CommandValue, Info::CommandData},
    {u"empty", Info::NoValue, Info::NoData},
};

//! By the number of the type.
constexpr const char16_t *types[] = {u"none",  u"operator", u"function",  u"boolean", u"integer",
                                     u"float", u"number",   u"string",    u"color",   u"hexadecimal",
                                     u"log",   u"device",   u"reference", u"command"};

QString word(const char16_t *english)
{
    return LocalizationHelper::coreString(QString::fromUtf16(english));
}

const KindWord &wordOf(Info::ValueType kind)
{
    for (const KindWord &row : kinds) {
        if (row.kind == kind) {
            return row;
        }
    }
    return kinds[std::size(kinds) - 1];
}

QString nameOf(Info::DataType type)
{
    return word(types[std::min<size_t>(type, std::size(types) - 1)]);
}

QStringList operators()
{
    QStringList all = ExpressionVocabulary::mathOperators() + ExpressionVocabulary::booleanOperators();
    all.removeDuplicates();
    return all;
}

} // namespace

QString TermsModel::described(const GeneralDataInfo &term)
{
    return u"%1 %2"_s.arg(word(wordOf(term.valueType()).word), term.value());
}

void TermsModel::setTerms(const GeneralDataList &terms)
{
    beginResetModel();
    m_terms = terms;
    endResetModel();
}

void TermsModel::add(int row)
{
    beginInsertRows({}, row, row);
    m_terms.insert(row, Info(Info::ConstantValue, Info::IntegerData, u"0"_s));
    endInsertRows();
    emit termsChanged();
}

void TermsModel::remove(int row)
{
    beginRemoveRows({}, row, row);
    QList<Info> rest(m_terms.begin(), m_terms.end());
    rest.removeAt(row);
    m_terms = GeneralDataList(rest);
    endRemoveRows();
    emit termsChanged();
}

bool TermsModel::move(int row, int by)
{
    const int to = row + by;
    if (row < 0 || to < 0 || to >= rowCount()) {
        return false;
    }
    beginMoveRows({}, row, row, {}, by > 0 ? to + 1 : to);
    QList<Info> moved(m_terms.begin(), m_terms.end());
    moved.swapItemsAt(row, to);
    m_terms = GeneralDataList(moved);
    endMoveRows();
    emit termsChanged();
    return true;
}

void TermsModel::replace(int row, const GeneralDataInfo &term)
{
    m_terms.replace(row, term);
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    emit termsChanged();
}

int TermsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_terms.count());
}

int TermsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TermsModel::data(const QModelIndex &index, int role) const
{
    const Info &term = m_terms.at(index.row());
    if (role == Qt::DisplayRole || role == Qt::EditRole) {
        return index.column() == KindColumn   ? word(wordOf(term.valueType()).word)
               : index.column() == TypeColumn ? nameOf(term.dataType())
                                              : term.value();
    }
    if (role != ChoicesRole) {
        return {};
    }
    QStringList choices;
    if (index.column() == KindColumn) {
        for (const KindWord &row : kinds) {
            choices.append(word(row.word));
        }
    } else if (index.column() == TypeColumn) {
        for (const char16_t *type : types) {
            choices.append(word(type));
        }
    } else if (term.valueType() == Info::OperatorValue) {
        choices = operators();
    } else if (term.valueType() == Info::FunctionValue) {
        choices = ExpressionVocabulary::mathFunctions() + ExpressionVocabulary::stringFunctions();
    }
    return choices;
}

bool TermsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid()) {
        return false;
    }
    const QString text = value.toString();
    Info term = m_terms.at(index.row());
    if (index.column() == KindColumn) {
        const auto *kind =
            std::ranges::find_if(kinds, [&text](const KindWord &row) { return word(row.word) == text; });
        if (kind == std::end(kinds) || kind->kind == term.valueType()) {
            return false;
        }
        term = Info(kind->kind, kind->initialType, kind->kind == Info::NoValue ? QString() : term.value());
    } else if (index.column() == TypeColumn) {
        const auto *type =
            std::ranges::find_if(types, [&text](const char16_t *known) { return word(known) == text; });
        if (type == std::end(types)) {
            return false;
        }
        term.setDataType(Info::DataType(type - std::begin(types)));
    } else {
        term.setValue(text);
        const bool isName = term.valueType() == Info::VariableValue || term.valueType() == Info::ObjectValue;
        if (const std::optional<Info> known = isName ? m_scope.find(text) : std::nullopt) {
            term = *known; // with the type of the name
        }
    }
    if (term == m_terms.at(index.row())) {
        return false;
    }
    replace(index.row(), term);
    return true;
}

QVariant TermsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return section + 1;
    }
    static constexpr const char16_t *titles[] = {u"Kind", u"Type", u"Value"};
    return word(titles[section]);
}

Qt::ItemFlags TermsModel::flags(const QModelIndex &) const
{
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
}

} // namespace Halvane::Corvex::Designer
