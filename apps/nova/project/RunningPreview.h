// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/document/ProjectDocument.h"

#include <QHash>
#include <QProcess>
#include <QTimer>

namespace Halvane::Corvex::Nova {

class Workspace;

/*! A preview of the project in a window of its own, in another process. It follows the edits: after each
    pause the project is built again, and the preview shows the new build. The values of its variables are the
    LiveValues of the project.
*/
class RunningPreview : public QObject
{
    Q_OBJECT

public:
    //! Starts it. The workspace must outlive the preview.
    explicit RunningPreview(Workspace &workspace, QObject *parent = nullptr);
    ~RunningPreview() override;

    //! The time without an edit before the project is built again.
    static constexpr int pause = 400; // milliseconds

signals:
    //! The user has closed it, or it could not be started; the reason is for the user and empty if the user
    //! has closed it.
    void ended(const QString &reason);

private:
    void build();
    void onBuilt();
    void start();
    void readValues();
    void fail(const QString &reason);

    Workspace &m_workspace;
    Common::TemporaryFolder m_folder;
    std::unique_ptr<Designer::ProjectDocument::BuildJob> m_build;
    QTimer m_pause;
    QProcess m_process;
    QByteArray m_output; //!< the start of a line
    QHash<QString, QString> m_values;
};

} // namespace Halvane::Corvex::Nova
