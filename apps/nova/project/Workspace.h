// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/ProblemApprovals.h"
#include "corvex/checks/ProblemList.h"
#include "corvex/core/ModelObserver.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/inspector/ObjectTreeModel.h"
#include "corvex/inspector/ProblemsModel.h"
#include "corvex/project/Screen.h"

#include "project/ViewState.h"

#include <QTimer>

#include <memory>

namespace Halvane::Corvex::Designer {
struct PlannedCommand;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Nova {

class RunningPreview;

/*! An open project with everything that the parts of its window share: the document, its view models, and
    the screen on the canvas.

    The selection of the document contains elements of that screen, the screen itself, or other objects, such
    as variables. It is never empty while there is a screen.
*/
class Workspace
    : public QObject
    , private Designer::ModelObserver
{
    Q_OBJECT

public:
    //! \a models are the installed device models; they must outlive the workspace.
    Workspace(std::unique_ptr<Designer::Project> project, const Designer::ConfigurationContainer &models,
              QObject *parent = nullptr);
    ~Workspace() override;

    //! Edits are saved automatically after this time, unless the user has switched that off.
    static constexpr int autosavePause = 20'000; // milliseconds

    Designer::ProjectDocument &document() { return m_document; }
    Designer::Project &project() const { return m_document.project(); }
    Designer::ObjectTreeModel &tree() { return m_tree; }
    Designer::ProblemList &problems() { return m_problems; }
    Designer::ProblemsModel &problemsModel() { return m_problemsModel; }
    ViewState &view() { return m_view; }
    const Designer::ConfigurationContainer &models() const { return m_models; }

    //! Null in a project without screens.
    Designer::Screen *screen() const { return m_screen; }
    //! Also selects the screen, unless something on it is selected.
    void showScreen(Designer::Screen *screen);
    //! Selects the object, and shows its screen.
    void reveal(Designer::DesignerObject *object);
    //! The selected elements, in any order; without the screen and without variables.
    QList<Designer::DesignerObject *> selectedElements() const;

    //! Hides, shows, locks or unlocks elements on the canvas; the selection stays.
    void setFlag(const QList<Designer::DesignerObject *> &objects, Designer::CanvasState::Flag flag, bool on);

    //! Pushes the command. Emits noted() or refused().
    bool push(Designer::PlannedCommand planned);
    bool push(std::unique_ptr<Designer::UndoCommand> command);
    //! Owns the job until it has finished, and shows its progress.
    void follow(std::unique_ptr<Common::Job> job);
    //! Starts or ends the preview, which follows the edits.
    void setPreviewRunning(bool runs);
    bool isPreviewRunning() const { return m_preview != nullptr; }
    //! Reports a failure of the document to the user.
    void reportFailure();

signals:
    void screenChanged();
    void previewChanged();
    void jobStarted(Halvane::Corvex::Common::Job *job);
    //! Notes for the user about an edit that was made.
    void noted(const QStringList &notes);
    //! An edit was refused; the text is for the user.
    void refused(const QString &reason);

private:
    void aboutToRemove(const Designer::SharedProperty &list, qsizetype index,
                       Designer::DesignerObject *object) override;
    void inserted(const Designer::SharedProperty &list, qsizetype index,
                  Designer::DesignerObject *object) override;
    void projectAboutToLoad() override;
    void projectLoaded() override;

    void leaveScreen();
    void keepSelection();
    void followHistory(const Designer::UndoCommand *command);
    Designer::Screen *firstScreen() const;

    const Designer::ConfigurationContainer &m_models;
    Designer::ProjectDocument m_document;
    Designer::ProblemApprovals m_approvals;
    Designer::ProblemList m_problems;
    Designer::ProblemsModel m_problemsModel;
    Designer::ObjectTreeModel m_tree;
    ViewState m_view;
    QTimer m_autosave; //!< since the first edit that is in no file
    QPointer<Designer::Screen> m_screen;
    std::unique_ptr<Common::Job> m_job;
    std::unique_ptr<RunningPreview> m_preview;
    QString m_screenName; //!< while the project is being loaded
};

} // namespace Halvane::Corvex::Nova
