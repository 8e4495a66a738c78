// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/common/Job.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/project/private/ProjectResources.h"

#include <QFile>

#include <optional>

namespace Halvane::Corvex::Designer {

class ModelObserver;
class Project;

//! One autosave: writes the project into a temporary folder, in small pieces, and packs that folder. If the
//! project changes between two pieces, the writing starts over.
class CORVEX_EXPORT AutosaveRun
{
    Q_DISABLE_COPY_MOVE(AutosaveRun)

public:
    AutosaveRun(Project &project, const QString &archive);
    ~AutosaveRun();

    //! Call it in the thread of the project.
    Common::Job::Next write(Common::Progress &progress, QString &error);
    //! Call it in any thread after the project was written. A failed archive is deleted.
    bool pack(Common::Progress &progress, QString &error);
    bool isPacked() const { return m_isPacked; }
    //! Calls \a restarted whenever the writing starts, with the project in its current state.
    void onRestart(std::function<void()> restarted) { m_restarted = std::move(restarted); }

private:
    bool restart(QString &error);
    bool finishFile(QString &error);

    Project &m_project;
    QString m_archive;
    Common::TemporaryFolder m_folder;
    std::unique_ptr<ModelObserver> m_watch;
    std::unique_ptr<QFile> m_file;
    std::unique_ptr<ObjectXmlWriter> m_writer;
    std::optional<ProjectResources> m_resources;
    std::function<void()> m_restarted;
    int m_restarts = 0;
    bool m_hasChanged = true; //!< since the writing has started
    bool m_isPacked = false;
};

} // namespace Halvane::Corvex::Designer
