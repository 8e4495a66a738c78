// SPDX-License-Identifier: MIT
#include "PreviewProgram.h"

#include "corvex/preview/Bounds.h"

#include "terminal/Call.h"
#include "terminal/Terminal.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <csignal>
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

static QStringList linesOf(const QByteArray &text)
{
    return QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
}

PreviewProgram::PreviewProgram(const Call &call, const QString &temporary)
    : m_call(call)
    , m_temporary(temporary)
{
    m_process.setProcessChannelMode(call.asJson() ? QProcess::SeparateChannels : QProcess::ForwardedChannels);
    m_process.setInputChannelMode(QProcess::ForwardedInputChannel);
#ifdef Q_OS_LINUX
    // End the preview with the tool; otherwise its window would stay open.
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    m_process.setProgram(QDir::cleanPath(QCoreApplication::applicationDirPath()
                                         + u"/" CORVEX_PROGRAM_TO_LIBRARY "/corvex-preview"_s));
}

bool PreviewProgram::start(const QStringList &arguments)
{
    m_process.setArguments(arguments + QStringList{u"--temporary"_s, m_temporary});
    m_process.start();
    if (m_process.waitForStarted()) {
        return true;
    }
    m_call.failed(u"\"%1\" cannot be started: %2. Install the program again, with its libraries."_s.arg(
        m_process.program(), m_process.errorString()));
    return false;
}

ExitCode PreviewProgram::finish()
{
    for (const QString &line : linesOf(m_process.readAllStandardOutput())) {
        m_call.terminal().print(line);
    }
    for (const QString &line : linesOf(m_process.readAllStandardError())) {
        m_call.terminal().printError(line);
    }
    const bool isOurs = m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() >= 0
                        && m_process.exitCode() <= int(ExitCode::File);
    return isOurs ? ExitCode(m_process.exitCode()) : m_call.failed(reasonOfEnd());
}

//! Why the preview ended without an exit code of its own.
QString PreviewProgram::reasonOfEnd() const
{
    QFile file(m_temporary + QLatin1StringView(Preview::Bounds::placeFile));
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QString place = QString::fromUtf8(bytes.constData());
    const QString where = place.isEmpty() ? u"before the first screen"_s : u"at \"%1\""_s.arg(place);
    switch (m_process.exitStatus() == QProcess::CrashExit ? m_process.exitCode() : 0) {
    case SIGXCPU:
        return u"The preview was stopped %1: it used more than %2 seconds of processor time."_s.arg(
            where, QString::number(Preview::Bounds::processorSeconds));
    case SIGABRT:
    case SIGSEGV:
    case SIGBUS:
        return u"The preview was stopped %1: it used more than %2 GB of memory, or a script called itself "
               "endlessly."_s.arg(where, QString::number(Preview::Bounds::memory / 1024 / 1024 / 1024));
    default:
        return u"The system stopped the preview %1 (%2)."_s.arg(where, QString::number(m_process.exitCode()));
    }
}

} // namespace Halvane::Corvex::Tool
