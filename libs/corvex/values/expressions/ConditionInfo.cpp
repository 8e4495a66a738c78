// SPDX-License-Identifier: MIT
#include "corvex/values/expressions/ConditionInfo.h"

#include "corvex/values/text/ValueConversion.h"

#include <QMap>

namespace Halvane::Corvex::Designer {

using namespace Qt::StringLiterals;

ConditionInfo::ConditionInfo(const QString &condition1, double value1, const QString &condition2,
                             double value2, bool isOr)
    : m_condition1(condition1)
    , m_condition2(condition2)
    , m_value1(value1)
    , m_value2(value2)
    , m_isOr(isOr)
{ }

ConditionInfo::ConditionInfo(const QString &text, bool *ok)
{
    bool parsed = false;
    const QMap<QString, QString> group = ValueConversion::toGroupProperties(text, &parsed);
    const QString operatorName = group.value(u"operator"_s);
    parsed = parsed && group.size() == 5 && group.contains(u"condition1"_s) && group.contains(u"condition2"_s)
             && (operatorName == "AND"_L1 || operatorName == "OR"_L1);
    bool isReal1 = false;
    bool isReal2 = false;
    const double value1 = ValueConversion::toReal(group.value(u"value1"_s), &isReal1);
    const double value2 = ValueConversion::toReal(group.value(u"value2"_s), &isReal2);
    parsed = parsed && isReal1 && isReal2;
    if (parsed) {
        *this = ConditionInfo(group.value(u"condition1"_s), value1, group.value(u"condition2"_s), value2,
                              operatorName == "OR"_L1);
    }
    if (ok) {
        *ok = parsed;
    }
}

QString ConditionInfo::toString() const
{
    return ValueConversion::toString(QMap<QString, QString>{
        {u"condition1"_s, m_condition1},
        {u"value1"_s, ValueConversion::toString(m_value1)},
        {u"condition2"_s, m_condition2},
        {u"value2"_s, ValueConversion::toString(m_value2)},
        {u"operator"_s, m_isOr ? u"OR"_s : u"AND"_s},
    });
}

const QStringList &ConditionInfo::validConditions()
{
    static const QStringList names{u"None"_s, u"GT"_s, u"GE"_s, u"LT"_s, u"LE"_s};
    return names;
}

QString ConditionInfo::conditionToOperator(const QString &name)
{
    static const QMap<QString, QString> operators{
        {u"GT"_s, u">"_s}, {u"GE"_s, u">="_s}, {u"LT"_s, u"<"_s}, {u"LE"_s, u"<="_s}};
    return operators.value(name);
}

} // namespace Halvane::Corvex::Designer
