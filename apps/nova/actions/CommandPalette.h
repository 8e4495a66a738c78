// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QAction;
class QListView;
class QStandardItemModel;

namespace Halvane::Corvex::Designer {
class SearchLine;
}

namespace Halvane::Corvex::Nova {

class MainWindow;
class WindowActions;

//! A list of all actions with their keys. The user types a part of a name and presses Enter.
class CommandPalette : public QDialog
{
    Q_OBJECT

public:
    explicit CommandPalette(const WindowActions &actions, QWidget *parent);

    //! Opens it over the window. It is deleted when it closes.
    static void open(MainWindow &window);

private:
    void filter(const QString &text);
    void run(const QModelIndex &index);

    QList<QAction *> m_all;
    QStandardItemModel *m_model;
    Designer::SearchLine *m_search;
    QListView *m_view;
};

} // namespace Halvane::Corvex::Nova
