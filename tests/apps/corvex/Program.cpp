// SPDX-License-Identifier: MIT
#include "Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#ifdef Q_OS_LINUX
#include <array>
#include <cerrno>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#endif

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Test {

QJsonValue ProgramRun::json() const
{
    const QJsonDocument document = QJsonDocument::fromJson(out.toUtf8());
    if (document.isNull()) {
        return QJsonValue::Undefined;
    }
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

namespace {

void deny(long systemCall)
{
#ifdef Q_OS_LINUX
    auto steps = std::to_array<sock_filter>({
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, quint32(systemCall), 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    });
    const sock_fprog filter{steps.size(), steps.data()};
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter);
#endif
}

} // namespace

ProgramRun corvex(const QStringList &arguments, const QString &folder, long denied)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    // The leak checker sometimes crashes at the end of a program that has loaded libraries. Other tests check
    // the same code for leaks.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ASAN_OPTIONS"_s, environment.value(u"ASAN_OPTIONS"_s) + u":detect_leaks=0"_s);
    process.setProcessEnvironment(environment);
    if (denied >= 0) {
        process.setChildProcessModifier([denied] { deny(denied); });
    }
    process.start(QStringLiteral(CORVEX_PROGRAM), arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit) {
        return {-1, QString(), process.errorString()};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace Halvane::Corvex::Test
