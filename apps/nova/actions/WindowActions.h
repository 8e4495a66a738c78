// SPDX-License-Identifier: MIT
#pragma once

#include "actions/Action.h"

#include <QHash>
#include <QObject>

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

namespace Halvane::Corvex::Nova {

//! The actions of one window, made from the table of actions.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    //! The window must outlive the actions.
    explicit WindowActions(MainWindow &window);

    void fillMenus(QMenuBar &bar) const;
    void fillToolBar(QToolBar &bar) const;
    //! Adds the actions with these ids, and a line for null.
    void fillMenu(QMenu &menu, std::span<const char *const> ids) const;

    //! Null if there is no such action.
    QAction *action(const QString &id) const;
    //! In the order of the menus.
    const QList<QAction *> &all() const { return m_actions; }
    //! Enables the actions that can run now, and updates those that are on or off.
    void update();
    //! Adds an action that the table does not have, such as one that shows a panel.
    void add(QAction *action);
    //! Replaces the keys of an action and remembers them for all windows; null restores those of the table.
    void setKeys(QAction *action, const QString &keys);
    //! Whether the user has replaced the keys.
    static bool hasOwnKeys(const QAction *action);
    //! The other action with one of the keys; null if they are free.
    QAction *userOf(const QKeySequence &keys, const QAction *except) const;

    //! The sentence about the action, and its text without the mnemonic.
    static QString tipOf(const QAction *action);
    static QString titleOf(const QAction *action);

private:
    QAction *make(const Action &row);

    MainWindow &m_window;
    QList<QAction *> m_actions;
    QHash<QString, QAction *> m_byId;
    QHash<const QAction *, const Action *> m_rows;
};

} // namespace Halvane::Corvex::Nova
