// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QToolButton;

namespace Halvane::Corvex::Designer {
class KdTableView;
class SearchLine;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Nova {

class VariablesTable;
class Workspace;

//! The variables of the project: a table with a search, and buttons that add, import and export.
class VariablesPanel : public QWidget
{
    Q_OBJECT

public:
    explicit VariablesPanel(Workspace &workspace, QWidget *parent = nullptr);

private:
    QToolButton *makeButton(const QString &text, int icon);
    void add(const QString &className);
    void giveSelection();
    void takeSelection();
    void importTable();
    void exportTable();

    Workspace &m_workspace;
    VariablesTable *m_table;
    Designer::SearchLine *m_search;
    Designer::KdTableView *m_view;
    bool m_isSelecting = false;
};

} // namespace Halvane::Corvex::Nova
