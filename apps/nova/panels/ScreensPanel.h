// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace Halvane::Corvex::Nova {

class Workspace;

//! The screens of the project with small pictures. Screens are renamed in place and ordered by drag and drop.
class ScreensPanel : public QListView
{
    Q_OBJECT

public:
    explicit ScreensPanel(Workspace &workspace, QWidget *parent = nullptr);

private:
    void reset();
    void showCurrent();

    Workspace &m_workspace;
};

} // namespace Halvane::Corvex::Nova
