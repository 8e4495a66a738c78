// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QAction;
class QKeySequenceEdit;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace Halvane::Corvex::Designer {
class SearchLine;
}

namespace Halvane::Corvex::Nova {

class WindowActions;

//! Changes the keys of actions. Every change applies at once.
class KeysDialog : public QDialog
{
    Q_OBJECT

public:
    explicit KeysDialog(WindowActions &actions, QWidget *parent);

private:
    void fill();
    void filter(const QString &text);
    void showCurrent();
    void enter();
    void restore();
    void showKeys(int row);
    QAction *current() const;

    WindowActions &m_actions;
    Designer::SearchLine *m_search;
    QTreeWidget *m_list;
    QKeySequenceEdit *m_keys;
    QPushButton *m_restore;
    QLabel *m_error;
};

} // namespace Halvane::Corvex::Nova
