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

//! A build, running in a window, with all that is going on inside. Follows the folder when it is built anew.
class PreviewWindow : public QMainWindow
{
    Q_OBJECT

public:
    PreviewWindow();
    ~PreviewWindow() override;

    //! False, with a text for the user, when there is nothing to show; what was shown before stays.
    bool open(const QString &folder, const QString &stateFile, QString *error);
    PreviewSession &session() { return *m_session; }

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
    PanelView *m_view = nullptr; //!< as all that is below it, from the first build on
    QDockWidget *m_variablesDock = nullptr;
    QDockWidget *m_channelsDock = nullptr;
    QDockWidget *m_problemsDock = nullptr;
    ChannelsView *m_channels = nullptr;
    QComboBox *m_screens = nullptr;
    QTimer m_watch;
};

} // namespace Halvane::Corvex::Preview
