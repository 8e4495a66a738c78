// SPDX-License-Identifier: MIT
#include "project/RunningPreview.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/document/DeviceFolder.h"
#include "corvex/document/LiveValues.h"
#include "corvex/project/Project.h"

#include "project/Workspace.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::Job;
using Common::LocalizationHelper;

namespace {

constexpr int endTime = 2000; // milliseconds
constexpr qsizetype longestLine = 16 * 1024 * 1024;

QString buildPath(const Common::TemporaryFolder &folder)
{
    return folder.filePath(u"build"_s);
}

} // namespace

RunningPreview::RunningPreview(Workspace &workspace, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_folder(u"corvex-nova-preview"_s)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, &RunningPreview::build);
    connect(&workspace.document().history(), &ProjectHistory::moved, &m_pause, qOverload<>(&QTimer::start));
    m_process.setProgram(QDir::cleanPath(QCoreApplication::applicationDirPath()
                                         + u"/" CORVEX_PROGRAM_TO_LIBRARY "/corvex-preview"_s));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
#ifdef Q_OS_LINUX
    // Ends with this program; otherwise its window would stay open.
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &RunningPreview::readValues);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            fail(m_process.errorString());
        }
    });
    connect(&m_process, &QProcess::finished, this, [this](int code) {
        fail(code == 0 ? QString()
                       : LocalizationHelper::coreString(u"The preview has ended unexpectedly."_s));
    });
    LiveValues::of(workspace.project()).setReader([this](const QString &name) {
        const auto value = m_values.constFind(name);
        return value == m_values.cend() ? std::nullopt : std::optional(*value);
    });
    m_pause.start(0);
}

RunningPreview::~RunningPreview()
{
    LiveValues::of(m_workspace.project()).setReader({});
    m_process.disconnect(this);
    m_process.terminate();
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(endTime)) {
        m_process.kill();
        m_process.waitForFinished(endTime);
    }
}

void RunningPreview::fail(const QString &reason)
{
    emit ended(reason);
}

//! An edit cancels the build, and the next pause starts another one.
void RunningPreview::build()
{
    m_build = m_workspace.document().build(ProjectDocument::OnEdit::Cancel);
    if (m_build) {
        connect(m_build.get(), &Job::finished, this, &RunningPreview::onBuilt);
    } else {
        m_pause.start(); // during a gesture
    }
}

void RunningPreview::onBuilt()
{
    ProjectDocument::BuildJob *job = m_build.release();
    job->deleteLater(); // it emits this signal
    const std::optional<ProjectDocument::BuildFolder> built = job->takeResult();
    if (!built) {
        // The preview keeps showing the last build; problems are listed in their panel.
        if (job->outcome() == Job::Outcome::Failed && m_process.state() == QProcess::NotRunning) {
            fail(job->errorString());
        }
        return;
    }
    QString error;
    if (!DeviceFolder(buildPath(m_folder)).bring(QDir(**built).filePath(u"project"_s), &error)) {
        fail(error);
    } else if (m_process.state() == QProcess::NotRunning) {
        start();
    }
}

void RunningPreview::start()
{
    // The preview may read the folder around the build, because the next build replaces it there.
    m_process.setArguments({u"--report"_s, u"--trust"_s, u"--temporary"_s, m_folder.filePath(u"classes"_s),
                            DeviceFolder(buildPath(m_folder)).projectPath()});
    m_process.start();
}

void RunningPreview::readValues()
{
    m_output += m_process.readAllStandardOutput();
    if (m_output.size() > longestLine) {
        m_output.clear();
    }
    bool isChanged = false;
    for (qsizetype end = m_output.indexOf('\n'); end >= 0; end = m_output.indexOf('\n')) {
        const QJsonObject values = QJsonDocument::fromJson(m_output.first(end)).object();
        m_output.remove(0, end + 1);
        for (auto value = values.begin(); value != values.end(); ++value) {
            m_values.insert(value.key(), value.value().toString());
            isChanged = true;
        }
    }
    if (isChanged) {
        emit LiveValues::of(m_workspace.project()).changed({});
    }
}

} // namespace Halvane::Corvex::Nova
