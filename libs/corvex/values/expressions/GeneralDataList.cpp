// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/GeneralDataList.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/expressions/ExpressionCode.h"
#include "corvex/values/expressions/ExpressionGrammar.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;
using Kind = ExpressionRules::Kind;

namespace {

constexpr auto border = "><"_L1;

bool isInfoType(GeneralDataList::InfoType type)
{
    return type >= GeneralDataList::GeneralExpression && type <= GeneralDataList::StringExpression;
}

bool allTerms(const QList<GeneralDataInfo> &terms, GeneralDataList::InfoType infoType,
              bool (*check)(Kind, const GeneralDataInfo &))
{
    return isInfoType(infoType) && std::all_of(terms.begin(), terms.end(), [&](const GeneralDataInfo &term) {
               return check(Kind(infoType), term);
           });
}

//! A condition may not be converted: the text "false", for example, would count as true.
bool canSelect(Kind kind, GeneralDataInfo::OutputType output)
{
    const bool isConverted =
        output == GeneralDataInfo::StringOutput || output == GeneralDataInfo::ColorOutput;
    return kind == Kind::Math || kind == Kind::String || !isConverted;
}

//! Whether the code of a term changes its meaning after the previous terms. A parenthesis after an operand
//! would call the operand. A division sign without an operand would begin a regular expression, which could
//! end inside a text constant and run the rest of the text as code.
bool isMisread(QStringView code, bool followsOperand)
{
    return followsOperand ? code.startsWith(u'(') : code == u'/';
}

bool appendExpression(QString &code, const QList<GeneralDataInfo> &terms, Kind kind,
                      GeneralDataInfo::OutputType output)
{
    const bool selectorsAreBoolean = kind == Kind::Math || kind == Kind::String;
    for (qsizetype i = 0; i < terms.size(); ++i) {
        if (i > 0) {
            code += u' ';
        }
        const qsizetype begin = code.size();
        const bool selects = i + 1 < terms.size() && ExpressionGrammar::isOperator(terms[i + 1], u'?');
        if (selects && !canSelect(kind, output)) {
            return false;
        }
        if (!(selects && selectorsAreBoolean ? ExpressionCode::appendSelector(code, kind, terms[i])
                                             : ExpressionCode::appendTerm(code, kind, terms[i], output))) {
            return false;
        }
        const bool followsOperand = i > 0 && ExpressionGrammar::endsOperand(kind, terms[i - 1]);
        if (isMisread(QStringView(code).sliced(begin), followsOperand)) {
            return false;
        }
    }
    return true;
}

bool appendAssignments(QString &code, const QList<GeneralDataInfo> &terms, GeneralDataInfo::OutputType output)
{
    if (terms.size() % 2 != 0) {
        return false;
    }
    for (qsizetype i = 0; i < terms.size(); i += 2) {
        if (i > 0) {
            code += u'\n';
        }
        if (!ExpressionCode::appendAssignment(code, terms[i], terms[i + 1], output)) {
            return false;
        }
    }
    return true;
}

QString translated(const char *message)
{
    return Common::LocalizationHelper::coreString(QString::fromLatin1(message));
}

//! "Term 2, "0101+", …"
QString aboutTerm(const char *message, const QList<GeneralDataInfo> &terms, qsizetype index)
{
    constexpr qsizetype longest = 60;
    const QString text = terms[index].toString();
    return translated(message).arg(QString::number(index + 1),
                                   text.size() > longest ? text.first(longest) + u'\u2026' : text);
}

//! Calls \a change for every term and counts how often it returns true.
template<typename Change>
int changeTerms(QList<GeneralDataInfo> &terms, Change change)
{
    int changed = 0;
    for (GeneralDataInfo &term : terms) {
        changed += change(term) ? 1 : 0;
    }
    return changed;
}

} // namespace

GeneralDataList::GeneralDataList(const QString &text, bool *ok)
{
    QStringView rest(text);
    bool parsed = true;
    const auto appendParsed = [this](QStringView part) {
        GeneralDataInfo term;
        const bool accepted = term.parse(part);
        m_records.append(std::move(term));
        return accepted;
    };
    if (rest.startsWith(u'<') && rest.endsWith(u'>') && rest.contains(border)) {
        rest = rest.sliced(1).chopped(1);
        m_records.reserve(rest.count(border) + 1);
        qsizetype place = rest.indexOf(border);
        while (parsed && place >= 0) {
            parsed = appendParsed(rest.first(place));
            rest = rest.sliced(place + border.size());
            place = rest.indexOf(border);
        }
        parsed = parsed && appendParsed(rest);
    } else if (!rest.isEmpty()) {
        parsed = appendParsed(rest);
    }
    if (!parsed) {
        m_records.clear();
    }
    if (ok) {
        *ok = parsed;
    }
}

QString GeneralDataList::toString() const
{
    QString text;
    for (qsizetype i = 0; i < m_records.size(); ++i) {
        if (i > 0) {
            text += border;
        }
        m_records[i].appendTo(text);
    }
    return m_records.size() > 1 ? u'<' + text + u'>' : text;
}

void GeneralDataList::append(ValueType valueType, DataType dataType, const QString &value)
{
    m_records.emplaceBack(valueType, dataType, value);
}

void GeneralDataList::prepend(ValueType valueType, DataType dataType, const QString &value)
{
    m_records.emplaceFront(valueType, dataType, value);
}

bool GeneralDataList::insert(qsizetype index, ValueType valueType, DataType dataType, const QString &value)
{
    return insert(index, GeneralDataInfo(valueType, dataType, value));
}

bool GeneralDataList::replace(qsizetype index, ValueType valueType, DataType dataType, const QString &value)
{
    return replace(index, GeneralDataInfo(valueType, dataType, value));
}

bool GeneralDataList::isValidValueType(InfoType infoType) const
{
    return allTerms(m_records, infoType, &ExpressionRules::allowsValueType);
}

bool GeneralDataList::isValidDataType(InfoType infoType) const
{
    return allTerms(m_records, infoType, &ExpressionRules::allowsDataType);
}

bool GeneralDataList::isValidValue(InfoType infoType) const
{
    return allTerms(m_records, infoType, &ExpressionRules::allowsValue);
}

QString GeneralDataList::toQmlString(const OutputType &output, const InfoType &infoType) const
{
    if (!isInfoType(infoType)) {
        return {};
    }
    QString code;
    const bool translated = infoType == AssignExpression
                                ? appendAssignments(code, m_records, output)
                                : appendExpression(code, m_records, Kind(infoType), output);
    return translated ? code : QString();
}

bool GeneralDataList::isComplete(InfoType infoType) const
{
    return isInfoType(infoType)
           && (infoType == AssignExpression
                   ? m_records.size() % 2 == 0
                   : ExpressionGrammar::firstMisplaced(Kind(infoType), m_records) < 0);
}

QString GeneralDataList::obstacle(InfoType infoType) const
{
    const char *const incomplete = "The expression is incomplete.";
    for (qsizetype i = 0; i < m_records.size(); ++i) {
        const GeneralDataInfo &term = m_records[i];
        if (!isInfoType(infoType) || !ExpressionRules::allowsUntyped(Kind(infoType), term)) {
            const bool lacksName = term.value().isEmpty() && term.valueType() != GeneralDataInfo::NoValue;
            return lacksName
                       ? translated(incomplete)
                       : aboutTerm("Term %1 of the expression, \"%2\", cannot be used in it.", m_records, i);
        }
    }
    if (isComplete(infoType)) {
        return {};
    }
    const qsizetype misplaced = infoType == AssignExpression
                                    ? m_records.size()
                                    : ExpressionGrammar::firstMisplaced(Kind(infoType), m_records);
    return misplaced == m_records.size()
               ? translated(incomplete)
               : aboutTerm("Term %1 of the expression, \"%2\", cannot follow what is before it.", m_records,
                           misplaced);
}

bool GeneralDataList::containsObject(const QString &name, NameKind kind) const
{
    return std::any_of(begin(), end(), [&](const auto &term) { return term.containsObject(name, kind); });
}

bool GeneralDataList::containsScreenObject(const QString &name) const
{
    return std::any_of(begin(), end(), [&](const auto &term) { return term.containsScreenObject(name); });
}

// Do not detach a shared list that does not contain the name.

int GeneralDataList::replaceObject(const QString &oldName, const QString &newName, NameKind kind)
{
    if (!containsObject(oldName, kind)) {
        return 0;
    }
    return changeTerms(m_records, [&](auto &term) { return term.replaceObject(oldName, newName, kind); });
}

int GeneralDataList::replaceScreenObject(const QString &oldName, const QString &newName)
{
    if (!containsScreenObject(oldName)) {
        return 0;
    }
    return changeTerms(m_records, [&](auto &term) { return term.replaceScreenObject(oldName, newName); });
}

int GeneralDataList::removeObject(const QString &name, NameKind kind)
{
    if (!containsObject(name, kind)) {
        return 0;
    }
    return changeTerms(m_records,
                       [&](auto &term) { return term.containsObject(name, kind) && term.removeObject(); });
}

int GeneralDataList::removeScreenObject(const QString &name)
{
    if (!containsScreenObject(name)) {
        return 0;
    }
    return changeTerms(m_records,
                       [&](auto &term) { return term.containsScreenObject(name) && term.removeObject(); });
}

} // namespace Halvane::Corvex::Designer
