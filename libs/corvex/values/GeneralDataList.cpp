// SPDX-License-Identifier: MIT
#include "corvex/values/GeneralDataList.h"

#include "corvex/values/ExpressionCode.h"
#include "corvex/values/ExpressionRules.h"

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

bool isSelection(const GeneralDataInfo &term)
{
    return term.valueType() == GeneralDataInfo::OperatorValue && term.value() == u'?';
}

bool appendExpression(QString &code, const QList<GeneralDataInfo> &terms, Kind kind,
                      GeneralDataInfo::OutputType output)
{
    const bool selects = kind == Kind::Math || kind == Kind::String;
    for (qsizetype i = 0; i < terms.size(); ++i) {
        if (i > 0)
            code += u' ';
        const bool selector = selects && i + 1 < terms.size() && isSelection(terms[i + 1]);
        if (!(selector ? ExpressionCode::appendSelector(code, kind, terms[i])
                       : ExpressionCode::appendTerm(code, kind, terms[i], output)))
            return false;
    }
    return true;
}

bool appendAssignments(QString &code, const QList<GeneralDataInfo> &terms, GeneralDataInfo::OutputType output)
{
    if (terms.size() % 2 != 0)
        return false;
    for (qsizetype i = 0; i < terms.size(); i += 2) {
        if (i > 0)
            code += u'\n';
        if (!ExpressionCode::appendAssignment(code, terms[i], terms[i + 1], output))
            return false;
    }
    return true;
}

//! Calls \a change on every term and counts how often it says that it did change it.
template<typename Change>
int changeTerms(QList<GeneralDataInfo> &terms, Change change)
{
    int changed = 0;
    for (GeneralDataInfo &term : terms)
        changed += change(term) ? 1 : 0;
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
    if (!parsed)
        m_records.clear();
    if (ok)
        *ok = parsed;
}

QString GeneralDataList::toString() const
{
    QString text;
    for (qsizetype i = 0; i < m_records.size(); ++i) {
        if (i > 0)
            text += border;
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
    if (!isInfoType(infoType))
        return {};
    QString code;
    const bool translated = infoType == AssignExpression
                                ? appendAssignments(code, m_records, output)
                                : appendExpression(code, m_records, Kind(infoType), output);
    return translated ? code : QString();
}

bool GeneralDataList::containsObject(const QString &name, NameKind kind) const
{
    return std::any_of(begin(), end(), [&](const auto &term) { return term.containsObject(name, kind); });
}

bool GeneralDataList::containsScreenObject(const QString &name) const
{
    return std::any_of(begin(), end(), [&](const auto &term) { return term.containsScreenObject(name); });
}

// A list that does not hold the name is not detached from its copies.

int GeneralDataList::replaceObject(const QString &oldName, const QString &newName, NameKind kind)
{
    if (!containsObject(oldName, kind))
        return 0;
    return changeTerms(m_records, [&](auto &term) { return term.replaceObject(oldName, newName, kind); });
}

int GeneralDataList::replaceScreenObject(const QString &oldName, const QString &newName)
{
    if (!containsScreenObject(oldName))
        return 0;
    return changeTerms(m_records, [&](auto &term) { return term.replaceScreenObject(oldName, newName); });
}

int GeneralDataList::removeObject(const QString &name, NameKind kind)
{
    if (!containsObject(name, kind))
        return 0;
    return changeTerms(m_records,
                       [&](auto &term) { return term.containsObject(name, kind) && term.removeObject(); });
}

int GeneralDataList::removeScreenObject(const QString &name)
{
    if (!containsScreenObject(name))
        return 0;
    return changeTerms(m_records,
                       [&](auto &term) { return term.containsScreenObject(name) && term.removeObject(); });
}

} // namespace Halvane::Corvex::Designer
