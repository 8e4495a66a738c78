// SPDX-License-Identifier: MIT
#pragma once

#include "UserSettings.h"
#include "actions/Action.h"

#include <QMainWindow>

#include <memory>

class QDockWidget;
class QMenu;
class QStackedWidget;
class QToolButton;

namespace Halvane::Corvex::Designer {
class ConfigurationContainer;
class DesignerObject;
class Project;
class ZoomBox;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Nova {

class CanvasPage;
class CanvasView;
class ProjectFiles;
class WelcomePage;
class WindowActions;
class Workspace;

//! A window of the tool: the welcome page, or a project with its canvas and panels.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    //! \a models are the installed device models; they must outlive the window.
    explicit MainWindow(const Designer::ConfigurationContainer &models);
    ~MainWindow() override;

    const Designer::ConfigurationContainer &models() const { return m_models; }
    ProjectFiles &files() const { return *m_files; }
    WindowActions &actions() const { return *m_actions; }
    //! Null on the welcome page.
    Workspace *workspace() const { return m_workspace.get(); }
    //! Null on the welcome page.
    CanvasView *canvas() const;

    //! Closes the current project without questions and shows this one; null shows the welcome page.
    void setProject(std::unique_ptr<Designer::Project> project);
    //! What is there for actions.
    Needs state() const;

    void setLook(UserSettings::Look look);
    //! Shows notes for the user in the status bar, for a while.
    void showNotes(const QStringList &notes);
    void showAbout();
    //! The panel with that id; null if there is none, or if there is no project.
    QWidget *panel(const QString &id) const;
    //! Shows the dock of the panel in front of others and gives it the focus.
    void showPanel(const QString &id);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeDocks();
    void fillDocks();
    void emptyDocks();
    void connectWorkspace();
    void updateTitle();
    void updateProblems();
    void updateActions();
    void showCanvasMenu(const QPoint &place, const QList<Designer::DesignerObject *> &objects);

    const Designer::ConfigurationContainer &m_models;
    ProjectFiles *m_files;
    WindowActions *m_actions = nullptr;
    std::unique_ptr<Workspace> m_workspace;
    QStackedWidget *m_pages;
    WelcomePage *m_welcome = nullptr;
    CanvasPage *m_canvas = nullptr;
    QHash<QString, QDockWidget *> m_docks;
    QMenu *m_panelsMenu = nullptr;
    QToolButton *m_problems;
    Designer::ZoomBox *m_zoom;
    QByteArray m_firstState; //!< the layout of the panels before the user has changed it
    bool m_isUpdateDue = false;
};

} // namespace Halvane::Corvex::Nova
