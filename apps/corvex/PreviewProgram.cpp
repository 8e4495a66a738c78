// SPDX-License-Identifier: MIT
#include "PreviewProgram.h"

#include "Call.h"

#include <QCoreApplication>
#include <QDir>

#include <csignal>
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

PreviewProgram::PreviewProgram(const Call &call)
    : m_call(call)
{
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.setInputChannelMode(QProcess::ForwardedInputChannel);
#ifdef Q_OS_LINUX
    // A window without the tool that it belongs to would stay for good.
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    m_process.setProgram(QDir::cleanPath(QCoreApplication::applicationDirPath()
                                         + u"/" CORVEX_PROGRAM_TO_LIBRARY "/corvex-preview"_s));
}

bool PreviewProgram::start(const QStringList &arguments)
{
    m_process.setArguments(arguments);
    m_process.start();
    if (m_process.waitForStarted()) {
        return true;
    }
    m_call.failed(u"\"%1\" does not start: %2. Install the program together with its libraries."_s.arg(
        m_process.program(), m_process.errorString()));
    return false;
}

ExitCode PreviewProgram::exitCode() const
{
    const bool isOurs = m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() >= 0
                        && m_process.exitCode() <= int(ExitCode::File);
    return isOurs ? ExitCode(m_process.exitCode()) : m_call.failed(u"The preview has ended unexpectedly."_s);
}

} // namespace Halvane::Corvex::Tool
