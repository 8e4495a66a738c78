// SPDX-License-Identifier: MIT
#include "corvex/preview/elements/Buttons.h"

#include "corvex/preview/Panel.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

// How long a touch on a spinner lasts before it repeats, and the repeat interval, in milliseconds.
constexpr int repeatDelay = 500;
constexpr int repeatInterval = 100;

//! The variable that an element names. Reports a missing variable; null for an empty name, too.
Variable *variableFor(const Element *element, Panel *panel, const QString &name)
{
    Variable *variable = panel->variables().find(name);
    if (!variable && !name.isEmpty()) {
        panel->report(element, u"There is no variable \"%1\"."_s.arg(name));
    }
    return variable;
}

} // namespace

void Button::start()
{
    if (TouchArea *area = m_target.makeArea()) {
        connect(area, &TouchArea::pressed, this, [this] {
            perform([this] {
                emit pressedState();
                emit pressed();
            });
        });
        connect(area, &TouchArea::released, this, [this] { perform([this] { emit normalState(); }); });
    }
}

void CheckButton::start()
{
    m_variable = variableFor(this, panel(), m_variableName);
    if (m_variable) {
        m_isChecked = m_variable->value().toBool();
        connect(m_variable, &Variable::valueChanged, this,
                [this] { setChecked(m_variable->value().toBool()); });
    }
    if (TouchArea *area = m_target.makeArea()) {
        connect(area, &TouchArea::pressed, this, [this] {
            perform([this] {
                if (m_variable) {
                    m_variable->setValue(!m_isChecked);
                } else {
                    setChecked(!m_isChecked);
                }
            });
        });
    }
    perform([this] { m_isChecked ? emit checkedState() : emit uncheckedState(); });
}

void CheckButton::setChecked(bool checked)
{
    if (m_isChecked == checked) {
        return;
    }
    m_isChecked = checked;
    emit checkedChanged();
    perform([this] { m_isChecked ? emit checkedState() : emit uncheckedState(); });
}

void NumberSpinner::start()
{
    m_variable = variableFor(this, panel(), m_variableName);
    connectArea(m_more.makeArea(), 1);
    connectArea(m_less.makeArea(), -1);
}

void NumberSpinner::connectArea(TouchArea *area, int direction)
{
    if (!area) {
        return;
    }
    connect(area, &TouchArea::pressed, this, [this, area, direction] {
        perform([this, direction] { direction > 0 ? emit incPressedState() : emit decPressedState(); });
        change(direction);
        panel()->clock().start(repeatDelay, repeatInterval, area, [this, direction] { change(direction); });
    });
    connect(area, &TouchArea::released, this, [this, area, direction] {
        panel()->clock().stop(area);
        perform([this, direction] { direction > 0 ? emit incNormalState() : emit decNormalState(); });
    });
}

void NumberSpinner::change(int direction)
{
    if (!m_variable) {
        return;
    }
    double value = m_variable->value().toDouble() + direction * m_step;
    if (m_range.size() == 2) {
        value = std::max(m_range.at(0).toDouble(), std::min(m_range.at(1).toDouble(), value));
    }
    perform([this, value] { m_variable->setValue(value); });
}

void ScreenLoader::start()
{
    if (TouchArea *area = m_target.makeArea()) {
        connect(area, &TouchArea::clicked, this,
                [this] { emit panel()->screenWanted(m_screen, Panel::pathOf(this)); });
    }
}

} // namespace Halvane::Corvex::Preview
