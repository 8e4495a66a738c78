// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/LogicQueue.h"
#include "corvex/preview/elements/Element.h"

#include <QVariant>

//! The elements that react to values.
namespace Halvane::Corvex::Preview {

//! Makes its changes when a trigger tells it to.
class Action : public Element
{
    Q_OBJECT

public:
    using Element::Element;

    void execute();

signals:
    void propertyChanges();
};

//! Runs its handler each time that something changes of what its conditions are made of.
class LogicBuilder
    : public Element
    , public Reaction
{
    Q_OBJECT
    Q_PROPERTY(QVariantList conditions READ conditions WRITE setConditions NOTIFY conditionsChanged)

public:
    using Element::Element;

    const QVariantList &conditions() const { return m_conditions; }
    void setConditions(const QVariantList &conditions);
    void react() override;

signals:
    void conditionsChanged();
    void evaluate();

protected:
    void start() override;

private:
    QVariantList m_conditions;
};

//! Runs its actions when its condition comes to hold, and when one of the data values changes while it holds.
class PropertyTrigger
    : public Element
    , public Reaction
{
    Q_OBJECT
    Q_PROPERTY(QVariantList dataValues READ dataValues WRITE setDataValues NOTIFY dataValuesChanged)
    Q_PROPERTY(QVariant condition READ condition WRITE setCondition NOTIFY conditionChanged)
    Q_PROPERTY(QVariantList actions MEMBER m_actions)

public:
    using Element::Element;

    const QVariantList &dataValues() const { return m_dataValues; }
    void setDataValues(const QVariantList &values);
    const QVariant &condition() const { return m_condition; }
    void setCondition(const QVariant &condition);
    void react() override;

signals:
    void dataValuesChanged();
    void conditionChanged();

protected:
    void start() override;

private:
    QVariantList m_dataValues;
    QVariant m_condition = true;
    QVariantList m_actions;
    bool m_held = false;       //!< the condition, when it was looked at last
    QVariantList m_seenValues; //!< the data values, then
};

} // namespace Halvane::Corvex::Preview
