// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/PreviewSession.h"

#include <QMainWindow>
#include <QTimer>

class QComboBox;
class QDockWidget;

namespace Halvane::Corvex::Preview {

class ChannelsView;
class PanelView;
class ProblemsModel;
class VariablesModel;

//! Runs a build in a window that shows its internal state. Reloads the folder when it is rebuilt.
class PreviewWindow : public QMainWindow
{
    Q_OBJECT

public:
    PreviewWindow();
    ~PreviewWindow() override;

    //! Returns false, with a text for the user, if there is nothing to show; the previous contents remain.
    bool open(const QString &folder, const QString &stateFile, QString *error);
    PreviewSession &session() { return *m_session; }

signals:
    //! The session is another one, because the folder was rebuilt or the user has restarted the panel.
    void restarted();

private:
    void makeView();
    void makeToolBar();
    void makeDocks();
    void fillDocks();
    QDockWidget *addDock(const QString &title, Qt::DockWidgetArea area);
    void use(std::unique_ptr<PreviewSession> session);
    void showScreen();
    void showZoom(const QString &text);
    void reload();
    void reloadIfNew();

    QString m_folder;
    QString m_stateFile;
    QString m_stamp;
    std::unique_ptr<PreviewSession> m_session;
    VariablesModel *m_variables;
    ProblemsModel *m_problems;
    PanelView *m_view = nullptr; //!< null, like the members below, until the first build is opened
    QDockWidget *m_variablesDock = nullptr;
    QDockWidget *m_channelsDock = nullptr;
    QDockWidget *m_problemsDock = nullptr;
    ChannelsView *m_channels = nullptr;
    QComboBox *m_screens = nullptr;
    QTimer m_watch;
};

} // namespace Halvane::Corvex::Preview
