// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QTreeView;

namespace Halvane::Corvex::Nova {

class Workspace;

//! The objects of the project as a tree. Its selection is that of the document.
class ObjectsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ObjectsPanel(Workspace &workspace, QWidget *parent = nullptr);

private:
    void takeSelection();
    void giveSelection();

    Workspace &m_workspace;
    QTreeView *m_view;
    bool m_isSelecting = false;
};

} // namespace Halvane::Corvex::Nova
