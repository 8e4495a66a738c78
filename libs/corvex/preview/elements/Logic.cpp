// SPDX-License-Identifier: MIT
#include "corvex/preview/elements/Logic.h"

#include "corvex/preview/Panel.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

void Action::execute()
{
    perform([this] { emit propertyChanges(); });
}

void LogicBuilder::start()
{
    panel()->logic().wake(this, this);
}

void LogicBuilder::setConditions(const QVariantList &conditions)
{
    // React even if the results of the conditions are equal: the values they depend on, which the handler
    // uses, have changed.
    m_conditions = conditions;
    emit conditionsChanged();
    if (isCompleted()) {
        panel()->logic().wake(this, this);
    }
}

void LogicBuilder::react()
{
    perform([this] { emit evaluate(); });
}

//! The rules that made the last assignments.
QString LogicBuilder::cause() const
{
    QStringList numbers;
    for (qsizetype i = 0; i < m_conditions.size(); ++i) {
        if (m_conditions.at(i).toBool()) {
            numbers.append(QString::number(i + 1));
        }
    }
    return numbers.isEmpty() ? QString() : u" Rules that are true: %1."_s.arg(numbers.join(u", "_s));
}

void PropertyTrigger::start()
{
    panel()->logic().wake(this, this);
}

void PropertyTrigger::setDataValues(const QVariantList &values)
{
    m_dataValues = values;
    emit dataValuesChanged();
    if (isCompleted()) {
        panel()->logic().wake(this, this);
    }
}

void PropertyTrigger::setCondition(const QVariant &condition)
{
    m_condition = condition;
    emit conditionChanged();
    if (isCompleted()) {
        panel()->logic().wake(this, this);
    }
}

void PropertyTrigger::react()
{
    const bool holds = m_condition.toBool();
    const bool isDue = holds && (!m_held || m_seenValues != m_dataValues);
    m_held = holds;
    m_seenValues = m_dataValues;
    if (!isDue) {
        return;
    }
    for (const QVariant &entry : std::as_const(m_actions)) {
        if (auto *action = qobject_cast<Action *>(entry.value<QObject *>())) {
            action->execute();
        }
    }
}

} // namespace Halvane::Corvex::Preview
