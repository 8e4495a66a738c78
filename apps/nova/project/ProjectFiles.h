// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/document/ProjectDocument.h"

#include <QObject>

namespace Halvane::Corvex::Designer {
class JobProgress;
}

namespace Halvane::Corvex::Nova {

class MainWindow;

/*! Opens, saves and closes the project of a window, and asks the user where that is necessary: unsaved
    edits, a recovered project, a file that others have changed. Nothing is lost without an answer.
*/
class ProjectFiles : public QObject
{
    Q_OBJECT

public:
    //! The window must outlive this object.
    explicit ProjectFiles(MainWindow &window);
    ~ProjectFiles() override;

    // Each asks about unsaved edits first where they would be lost.
    void create();
    //! Asks for the file.
    void open();
    //! Opens it in a job; errors are shown in a message.
    void open(const QString &path);
    //! Returns false if the user keeps the project open.
    bool close();
    void reload();
    bool save();
    void saveCopy();
    //! Asks for the folder.
    void build();

    bool isBusy() const { return m_load || m_build; }
    //! Follows the current job.
    Designer::JobProgress *progress() const { return m_progress; }

signals:
    void busyChanged();
    //! A project was opened, or opening it has failed.
    void opened(bool isOpen);

private:
    bool mayDiscard();
    void onLoaded();
    void onBuilt(const QString &target);
    void offerRecovery();
    void onChangedByOthers();
    void fail(const QString &what, const QString &where, const QString &details = {});

    MainWindow &m_window;
    Designer::JobProgress *m_progress;
    std::unique_ptr<Designer::ProjectDocument::LoadJob> m_load;
    QString m_loadPath;
    std::unique_ptr<Designer::ProjectDocument::BuildJob> m_build;
};

} // namespace Halvane::Corvex::Nova
