// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/LogicQueue.h"
#include "corvex/preview/elements/Element.h"

#include <QVariant>

//! Elements that react to changed values.
namespace Halvane::Corvex::Preview {

//! Applies its changes when it is triggered.
class Action : public Element
{
    Q_OBJECT

public:
    using Element::Element;

    void execute();

signals:
    void propertyChanges();
};

//! Runs its handler whenever an input of its conditions changes.
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
    QString cause() const override;

signals:
    void conditionsChanged();
    void evaluate();

protected:
    void start() override;

private:
    QVariantList m_conditions;
};

//! Runs its actions when its condition becomes true, and when a data value changes while it is true.
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
    bool m_held = false;       //!< the last value of the condition
    QVariantList m_seenValues; //!< the data values at that time
};

} // namespace Halvane::Corvex::Preview
