// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace Halvane::Corvex::Nova {

class Workspace;

//! The images of the project with small pictures. Files that are dropped here are added.
class ImagesPanel : public QListView
{
    Q_OBJECT

public:
    explicit ImagesPanel(Workspace &workspace, QWidget *parent = nullptr);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void reset();
    void addFiles(const QList<QUrl> &urls);
    void choose();

    Workspace &m_workspace;
};

} // namespace Halvane::Corvex::Nova
