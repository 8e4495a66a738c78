// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/elements/Element.h"
#include "corvex/preview/elements/TouchArea.h"

#include <QVariant>

//! Elements that react to a touch.
namespace Halvane::Corvex::Preview {

class Variable;

class Button : public Element
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *visualElement READ visualElement WRITE setVisualElement)

public:
    using Element::Element;

    QQuickItem *visualElement() const { return m_target.item(); }
    void setVisualElement(QQuickItem *item) { m_target.setItem(item); }

signals:
    void normalState();
    void pressedState();
    void pressed();

protected:
    void start() override;

private:
    TouchTarget m_target;
};

//! Shows a boolean variable and toggles it when pressed.
class CheckButton : public Element
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *visualElement READ visualElement WRITE setVisualElement)
    Q_PROPERTY(QString variable MEMBER m_variableName)
    Q_PROPERTY(bool checked READ isChecked NOTIFY checkedChanged)

public:
    using Element::Element;

    QQuickItem *visualElement() const { return m_target.item(); }
    void setVisualElement(QQuickItem *item) { m_target.setItem(item); }
    bool isChecked() const { return m_isChecked; }

signals:
    void checkedState();
    void uncheckedState();
    void checkedChanged();

protected:
    void start() override;

private:
    void setChecked(bool checked);

    TouchTarget m_target;
    QString m_variableName;
    Variable *m_variable = nullptr;
    bool m_isChecked = false;
};

//! Counts a variable up and down, repeatedly while it is held.
class NumberSpinner : public Element
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *incVisualElement READ incVisualElement WRITE setIncVisualElement)
    Q_PROPERTY(QQuickItem *decVisualElement READ decVisualElement WRITE setDecVisualElement)
    Q_PROPERTY(QString variable MEMBER m_variableName)
    Q_PROPERTY(double step MEMBER m_step)
    //! [minimum, maximum]
    Q_PROPERTY(QVariantList range MEMBER m_range)

public:
    using Element::Element;

    QQuickItem *incVisualElement() const { return m_more.item(); }
    void setIncVisualElement(QQuickItem *item) { m_more.setItem(item); }
    QQuickItem *decVisualElement() const { return m_less.item(); }
    void setDecVisualElement(QQuickItem *item) { m_less.setItem(item); }

signals:
    void incNormalState();
    void incPressedState();
    void decNormalState();
    void decPressedState();

protected:
    void start() override;

private:
    void connectArea(TouchArea *area, int direction);
    void change(int direction);

    TouchTarget m_more;
    TouchTarget m_less;
    QString m_variableName;
    Variable *m_variable = nullptr;
    double m_step = 1;
    QVariantList m_range;
};

class ScreenLoader : public Element
{
    Q_OBJECT
    Q_PROPERTY(QQuickItem *visualElement READ visualElement WRITE setVisualElement)
    //! The QML id of a screen.
    Q_PROPERTY(QString screen MEMBER m_screen)

public:
    using Element::Element;

    QQuickItem *visualElement() const { return m_target.item(); }
    void setVisualElement(QQuickItem *item) { m_target.setItem(item); }

protected:
    void start() override;

private:
    TouchTarget m_target;
    QString m_screen;
};

} // namespace Halvane::Corvex::Preview
