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

//! The device as the elements of its screens see it.
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

    //! The panel on which an object of QML stands.
    static Panel *of(const QObject *object);
    //! "Main.label1" for an object on a screen, from the names of those that it stands in.
    static QString pathOf(const QObject *object);
    void report(const QObject *element, const QString &message);

signals:
    //! By its QML id. Not before control is back in the event loop, as the screen that asks is deleted.
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
    QString m_stopped; //!< the element whose script the watchdog has stopped, until that is told
};

//! A stretch in which scripts of an element may run. Tells when they had to be stopped; of stretches within
//! each other the innermost that was.
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
