// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace Halvane::Corvex::Nova {

class HistoryModel;
class Workspace;

//! The history of the project. A click goes to that state.
class HistoryPanel : public QListView
{
    Q_OBJECT

public:
    explicit HistoryPanel(Workspace &workspace, QWidget *parent = nullptr);

private:
    void showPosition();

    Workspace &m_workspace;
    HistoryModel *m_model;
};

} // namespace Halvane::Corvex::Nova
