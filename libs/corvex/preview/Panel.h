// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/BuildGuard.h"
#include "corvex/preview/LogicQueue.h"
#include "corvex/preview/Watchdog.h"
#include "corvex/preview/state/ChannelStore.h"
#include "corvex/preview/state/Clock.h"
#include "corvex/preview/state/ProblemLog.h"
#include "corvex/preview/state/VariableStore.h"

#include <QQmlEngine>

namespace Halvane::Corvex::Preview {

//! The device, from the view of the elements on its screens.
class Panel : public QObject
{
    Q_OBJECT

public:
    explicit Panel(QObject *parent = nullptr);
    ~Panel() override;

    QQmlEngine &engine() { return m_engine; }
    BuildGuard &guard() { return m_guard; }
    VariableStore &variables() { return m_variables; }
    ChannelStore &channels() { return m_channels; }
    Clock &clock() { return m_clock; }
    LogicQueue &logic() { return m_logic; }
    ProblemLog &problems() { return m_problems; }
    Watchdog &watchdog() { return m_watchdog; }

    //! The panel that shows a QML object.
    static Panel *of(const QObject *object);
    //! The path of an object on a screen, "Main.label1", from the names of its parents.
    static QString pathOf(const QObject *object);
    void report(const QObject *element, const QString &message);

signals:
    //! A request for a screen by its QML id. Handle it from the event loop, because the requesting screen is
    //! deleted.
    void screenWanted(const QString &screen, const QString &element);

private:
    friend class ScriptScope;

    VariableStore m_variables;
    ChannelStore m_channels;
    Clock m_clock;
    LogicQueue m_logic;
    ProblemLog m_problems;
    BuildGuard m_guard;
    QQmlEngine m_engine;
    Watchdog m_watchdog;
    QString m_stopped; //!< the element whose script the watchdog stopped, until it is reported
};

//! A scope in which scripts of an element may run. Reports if they were stopped; with nested scopes, the
//! innermost one reports.
class ScriptScope
{
public:
    ScriptScope(Panel &panel, const QString &element);
    ~ScriptScope();
    Q_DISABLE_COPY_MOVE(ScriptScope)

private:
    Panel &m_panel;
    QString m_element;
    QString m_placeBefore;
};

} // namespace Halvane::Corvex::Preview
