// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

class QSortFilterProxyModel;

namespace Halvane::Corvex::Nova {

class Workspace;

//! The problems of the project, the worst first. A click shows the object; the menu of a problem offers its
//! fixes.
class ProblemsPanel : public QTreeView
{
    Q_OBJECT

public:
    explicit ProblemsPanel(Workspace &workspace, QWidget *parent = nullptr);

signals:
    //! The user wants to see this property of the selected object.
    void propertyRequested(const QString &id);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void show(const QModelIndex &index);

    Workspace &m_workspace;
    QSortFilterProxyModel *m_sorted;
};

} // namespace Halvane::Corvex::Nova
