// SPDX-License-Identifier: MIT
#include "Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

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

ProgramRun corvex(const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    // The search for leaks at the end of a program that has loaded libraries by itself crashes now and then
    // in the search itself. The tests of the rooms look for leaks in the same code.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ASAN_OPTIONS"_s, environment.value(u"ASAN_OPTIONS"_s) + u":detect_leaks=0"_s);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(CORVEX_PROGRAM), arguments);
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit) {
        return {-1, QString(), process.errorString()};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace Halvane::Corvex::Test
