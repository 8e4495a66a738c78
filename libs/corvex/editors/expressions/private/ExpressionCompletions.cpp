// SPDX-License-Identifier: MIT
#include "corvex/editors/expressions/private/ExpressionCompletions.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"
#include "corvex/values/expressions/ExpressionFunction.h"
#include "corvex/values/expressions/ExpressionVocabulary.h"

#include <algorithm>
#include <bit>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;
using Info = GeneralDataInfo;

constexpr quint32 untyped = 0;

quint32 typesOf(const std::optional<Info> &term)
{
    return term && term->dataType() != Info::NoData ? 1U << term->dataType() : untyped;
}

struct WordRow
{
    QLatin1StringView text;
    QLatin1StringView type;
};

constexpr WordRow operandWords[] = {
    {"true"_L1, "boolean"_L1}, {"false"_L1, "boolean"_L1}, {"not"_L1, "boolean"_L1}};
constexpr QLatin1StringView operatorWords[] = {"and"_L1, "or"_L1, "when"_L1, "do"_L1};

} // namespace

void ExpressionCompletions::setScope(const ExpressionScope &scope)
{
    m_scope = scope;
    m_isRead = false;
    m_place.clear();
}

void ExpressionCompletions::add(Names &names, const QString &text, quint32 types, Kind kind) const
{
    names.push_back({text, text.toCaseFolded(), types, kind});
}

void ExpressionCompletions::readNames()
{
    m_isRead = true;
    m_names.clear();
    for (const auto &[text, type] : operandWords) {
        add(m_names, text, ExpressionScope::typesNamed(type), Kind::Word);
    }
    for (const QLatin1StringView text : operatorWords) {
        const bool isOfRules = text == "when"_L1 || text == "do"_L1;
        if (!isOfRules || m_scope.hasRules()) {
            add(m_names, text, untyped, Kind::Operator);
        }
    }
    for (const ExpressionFunction &function : ExpressionFunction::all()) {
        add(m_names, function.name, ExpressionScope::typesNamed(function.result), Kind::Function);
    }
    for (const QString &constant : ExpressionVocabulary::mathValues()) {
        add(m_names, constant, ExpressionScope::typesNamed(u"number"_s), Kind::Word);
    }
    if (m_scope.isValid()) {
        const DesignerObject *owner = m_scope.owner();
        for (const QString &name : owner->project()->variables()->listItemNames()) {
            add(m_names, name, typesOf(m_scope.find(name)), Kind::Variable);
        }
        const Screen *screen = owner->screen();
        const QStringList elements = screen ? screen->getElementNames() : QStringList();
        for (const QString &name : elements) {
            add(m_names, name, untyped, Kind::Element);
        }
        const QStringList screens = screen ? QStringList() : owner->project()->screens()->listItemNames();
        for (const QString &name : screens) {
            add(m_names, name, untyped, Kind::Screen);
        }
    }
    std::ranges::sort(m_names, {}, &Name::folded);
}

//! The properties of an element, or the elements of a screen.
void ExpressionCompletions::readMembers(const QString &place)
{
    m_place = place;
    m_members.clear();
    const QString path = place.chopped(1);
    if (const auto *element = static_cast<const Element *>(m_scope.elementNamed(path))) {
        for (const RuntimeProperty &property : element->runtimeProperties()) {
            const QString name = place + property.property();
            add(m_members, name, typesOf(m_scope.find(name)), Kind::Property);
        }
    } else if (m_scope.isValid() && !m_scope.owner()->screen()) {
        const DesignerObject *screen = m_scope.owner()->project()->screens()->getListItem(path);
        for (const QString &name :
             screen ? static_cast<const Screen *>(screen)->getElementNames() : QStringList()) {
            add(m_members, place + name, untyped, Kind::Element);
        }
    }
    std::ranges::sort(m_members, {}, &Name::folded);
}

void ExpressionCompletions::filter(const QString &text, quint32 types, bool operandDue)
{
    if (!m_isRead) {
        readNames();
    }
    const QString place = text.first(text.lastIndexOf(u'.') + 1);
    if (!place.isEmpty() && m_place != place) {
        readMembers(place);
    }
    beginResetModel();
    m_showsMembers = !place.isEmpty();
    m_rows.clear();
    const QString folded = text.toCaseFolded();
    // First by the type, then by whether the name begins with the text, then names of the project.
    std::vector<quint32> groups[12];
    const Names &names = m_showsMembers ? m_members : m_names;
    for (quint32 i = 0; i < names.size(); ++i) {
        const Name &name = names[i];
        const qsizetype found = name.folded.indexOf(folded);
        if (found < 0 || (name.kind == Kind::Operator) == operandDue) {
            continue;
        }
        const int fit = name.types == untyped ? 1 : (name.types & types) != 0 ? 0 : 2;
        const bool isOfLanguage = name.kind == Kind::Function || name.kind == Kind::Word;
        groups[4 * fit + (found > 0 ? 2 : 0) + (isOfLanguage ? 1 : 0)].push_back(i);
    }
    for (const std::vector<quint32> &group : groups) {
        m_rows.insert(m_rows.end(), group.begin(), group.end());
    }
    endResetModel();
}

bool ExpressionCompletions::contains(const QString &text) const
{
    const Names &names = m_showsMembers ? m_members : m_names;
    const QString folded = text.toCaseFolded();
    for (auto name = std::ranges::lower_bound(names, folded, {}, &Name::folded);
         name != names.end() && name->folded == folded; ++name) {
        if (name->text == text) {
            return true;
        }
    }
    return false;
}

int ExpressionCompletions::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

const ExpressionCompletions::Name &ExpressionCompletions::nameAt(int row) const
{
    return (m_showsMembers ? m_members : m_names)[m_rows[size_t(row)]];
}

//! Read when the row is shown, so a list of 20,000 variables costs nothing for the others.
QString ExpressionCompletions::detailOf(const Name &name) const
{
    switch (name.kind) {
    case Kind::Function: {
        const ExpressionFunction *function = ExpressionFunction::find(name.text);
        return function ? u"(%1): %2"_s.arg(function->arguments, function->result) : QString();
    }
    case Kind::Element: {
        const DesignerObject *element = m_scope.elementNamed(name.text);
        return element ? element->displayName() : QString();
    }
    case Kind::Screen:
        return LocalizationHelper::coreString(u"screen"_s);
    case Kind::Variable:
    case Kind::Property: {
        const std::optional<Info> term = m_scope.find(name.text);
        const QString type = term ? ExpressionScope::nameOf(term->dataType()) : QString();
        const QString value = term ? m_scope.valueOf(*term).simplified() : QString();
        return value.isEmpty() ? type : u"%1 = %2"_s.arg(type, value);
    }
    case Kind::Word:
        return ExpressionScope::nameOf(Info::DataType(std::countr_zero(name.types)));
    case Kind::Operator:
        break;
    }
    return {};
}

QVariant ExpressionCompletions::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Name &name = nameAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return name.text;
    case DetailRole:
        return detailOf(name);
    case Qt::AccessibleTextRole:
        return QString(name.text + u' ' + detailOf(name));
    case CallRole:
        return name.kind == Kind::Function;
    case MemberRole:
        return name.kind == Kind::Element || name.kind == Kind::Screen;
    default:
        return {};
    }
}

} // namespace Halvane::Corvex::Designer
