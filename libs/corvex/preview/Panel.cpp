// SPDX-License-Identifier: MIT
#include "corvex/preview/Panel.h"

#include "corvex/preview/Bounds.h"

#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

constexpr char panelProperty[] = "corvexPanel";

const QObject *parentOf(const QObject *object)
{
    const auto *item = qobject_cast<const QQuickItem *>(object);
    return item && item->parentItem() ? item->parentItem() : object->parent();
}

} // namespace

Panel::Panel(QObject *parent)
    : QObject(parent)
    , m_watchdog(m_engine)
{
    m_engine.setProperty(panelProperty, QVariant::fromValue<QObject *>(this));
    m_engine.setOutputWarningsToStandardError(false);
    m_guard.guard(m_engine);
    connect(&m_clock, &Clock::ticked, &m_logic, &LogicQueue::flush);
    connect(&m_logic, &LogicQueue::isEndless, this, [this](QObject *element, const QString &cause) {
        report(element, u"Its rules trigger themselves endlessly. They are stopped until another value "
                        "changes."_s
                            + cause);
    });
}

Panel::~Panel() = default;

Panel *Panel::of(const QObject *object)
{
    const QQmlEngine *engine = qmlEngine(object);
    return engine ? qobject_cast<Panel *>(engine->property(panelProperty).value<QObject *>()) : nullptr;
}

QString Panel::pathOf(const QObject *object)
{
    QStringList names;
    for (; object; object = parentOf(object)) {
        if (!object->objectName().isEmpty()) {
            names.prepend(object->objectName());
        }
    }
    return names.join(u'.');
}

void Panel::report(const QObject *element, const QString &message)
{
    m_problems.report(pathOf(element), message);
}

ScriptScope::ScriptScope(Panel &panel, const QString &element)
    : m_panel(panel)
    , m_element(element)
    , m_placeBefore(Bounds::enter(element))
{
    Bounds::renew();
    m_panel.watchdog().enter();
}

ScriptScope::~ScriptScope()
{
    Bounds::enter(m_placeBefore);
    if (m_panel.m_stopped.isEmpty() && m_panel.engine().isInterrupted()) {
        m_panel.m_stopped = m_element;
    }
    if (m_panel.watchdog().leave()) {
        m_panel.problems().report(
            std::exchange(m_panel.m_stopped, QString()),
            u"A script took longer than %1 ms and was stopped."_s.arg(m_panel.watchdog().limit()));
    }
}

} // namespace Halvane::Corvex::Preview
