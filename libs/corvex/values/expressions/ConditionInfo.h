// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

//! Two comparisons of one value with a number, joined by AND or by OR.
class CORVEX_EXPORT ConditionInfo
{
public:
    ConditionInfo() = default;
    ConditionInfo(const QString &condition1, double value1, const QString &condition2, double value2,
                  bool isOr);
    //! Reads the form that toString() writes: all five keys, each with a value of its type.
    explicit ConditionInfo(const QString &text, bool *ok = nullptr);

    const QString &condition1() const { return m_condition1; }
    void setCondition1(const QString &condition) { m_condition1 = condition; }
    double value1() const { return m_value1; }
    void setValue1(double value) { m_value1 = value; }
    const QString &condition2() const { return m_condition2; }
    void setCondition2(const QString &condition) { m_condition2 = condition; }
    double value2() const { return m_value2; }
    void setValue2(double value) { m_value2 = value; }
    bool isOr() const { return m_isOr; }
    bool isAnd() const { return !m_isOr; }
    void setOr(bool isOr) { m_isOr = isOr; }

    QString toString() const;

    //! The names of the comparisons, including "None".
    static const QStringList &validConditions();
    //! The JavaScript operator of a comparison; empty for "None" and for unknown names.
    static QString conditionToOperator(const QString &name);

    friend bool operator==(const ConditionInfo &a, const ConditionInfo &b)
    {
        return a.m_condition1 == b.m_condition1 && a.m_value1 == b.m_value1
               && a.m_condition2 == b.m_condition2 && a.m_value2 == b.m_value2 && a.m_isOr == b.m_isOr;
    }
    friend bool operator!=(const ConditionInfo &a, const ConditionInfo &b) { return !(a == b); }

private:
    QString m_condition1;
    QString m_condition2;
    double m_value1 = 0;
    double m_value2 = 0;
    bool m_isOr = false;
};

} // namespace Halvane::Corvex::Designer
