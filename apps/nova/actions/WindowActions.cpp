// SPDX-License-Identifier: MIT
#include "actions/WindowActions.h"

#include "corvex/common/LocalizationHelper.h"

#include "UserSettings.h"
#include "window/MainWindow.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

QString translated(const char *english)
{
    return LocalizationHelper::coreString(QString::fromUtf8(english));
}

QList<QKeySequence> keysOf(const Action &row)
{
    const QString chosen = UserSettings::keysOf(QLatin1StringView(row.id));
    const QString keys = chosen.isNull() ? QString::fromLatin1(row.keys) : chosen;
    return keys.isEmpty() ? QList<QKeySequence>()
                          : QKeySequence::listFromString(keys, QKeySequence::PortableText);
}

} // namespace

WindowActions::WindowActions(MainWindow &window)
    : QObject(&window)
    , m_window(window)
{
    for (const ActionMenu &menu : actionMenus()) {
        for (const Action &row : menu.actions) {
            if (row.id) {
                make(row);
            }
        }
    }
    update();
}

QAction *WindowActions::make(const Action &row)
{
    auto *action = new QAction(translated(row.text), this);
    action->setObjectName(QLatin1StringView(row.id));
    action->setStatusTip(translated(row.tip));
    action->setShortcuts(keysOf(row));
    action->setCheckable(row.isOn);
    if (row.icon >= 0) {
        action->setIcon(IconSet::icon(IconSet::Icon(row.icon)));
    }
    connect(action, &QAction::triggered, this, [this, &row] {
        row.run(m_window);
        update();
    });
    m_window.addAction(action);
    m_actions.append(action);
    m_byId.insert(action->objectName(), action);
    m_rows.insert(action, &row);
    return action;
}

QAction *WindowActions::action(const QString &id) const
{
    return m_byId.value(id);
}

void WindowActions::fillMenus(QMenuBar &bar) const
{
    for (const ActionMenu &rows : actionMenus()) {
        QMenu *menu = bar.addMenu(translated(rows.title));
        menu->setObjectName(QLatin1StringView(rows.id));
        for (const Action &row : rows.actions) {
            if (row.id) {
                menu->addAction(action(QLatin1StringView(row.id)));
            } else {
                menu->addSeparator();
            }
        }
    }
}

void WindowActions::fillToolBar(QToolBar &bar) const
{
    for (const char *id : toolbarActions()) {
        if (QAction *shown = id ? action(QLatin1StringView(id)) : nullptr) {
            bar.addAction(shown);
        } else {
            bar.addSeparator();
        }
    }
}

void WindowActions::fillMenu(QMenu &menu, std::span<const char *const> ids) const
{
    for (const char *id : ids) {
        if (id) {
            menu.addAction(action(QLatin1StringView(id)));
        } else {
            menu.addSeparator();
        }
    }
}

void WindowActions::update()
{
    const Needs state = m_window.state();
    for (QAction *action : std::as_const(m_actions)) {
        const Action *found = m_rows.value(action);
        if (!found) {
            continue;
        }
        const Action &row = *found;
        action->setEnabled((row.needs & ~state) == Needs());
        if (row.isOn) {
            action->setChecked(row.isOn(m_window));
        }
    }
}

void WindowActions::add(QAction *action)
{
    m_actions.append(action);
    m_byId.insert(action->objectName(), action);
}

void WindowActions::setKeys(QAction *action, const QString &keys)
{
    UserSettings::setKeysOf(action->objectName(), keys);
    const Action *row = m_rows.value(action);
    action->setShortcuts(row ? keysOf(*row) : QKeySequence::listFromString(keys, QKeySequence::PortableText));
}

bool WindowActions::hasOwnKeys(const QAction *action)
{
    return !UserSettings::keysOf(action->objectName()).isNull();
}

QAction *WindowActions::userOf(const QKeySequence &keys, const QAction *except) const
{
    const auto user = std::ranges::find_if(m_actions, [&](const QAction *action) {
        return action != except && action->shortcuts().contains(keys);
    });
    return keys.isEmpty() || user == m_actions.end() ? nullptr : *user;
}

QString WindowActions::tipOf(const QAction *action)
{
    return action->statusTip();
}

QString WindowActions::titleOf(const QAction *action)
{
    return action->text().remove(u'&');
}

} // namespace Halvane::Corvex::Nova
