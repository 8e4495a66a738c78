// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QAction;
class QListWidget;

namespace Halvane::Corvex::Nova {

//! What the window shows without a project: new, open, and the recent projects with their pictures.
class WelcomePage : public QWidget
{
    Q_OBJECT

public:
    //! The page has a button for each action.
    explicit WelcomePage(const QList<QAction *> &actions, QWidget *parent = nullptr);

    //! Reads the recent projects again.
    void refresh();

signals:
    void openRequested(const QString &path);

private:
    QListWidget *m_recent;
};

} // namespace Halvane::Corvex::Nova
