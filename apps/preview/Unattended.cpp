// SPDX-License-Identifier: MIT
#include "Unattended.h"

#include "corvex/common/files/FileHelper.h"
#include "corvex/preview/Bounds.h"
#include "corvex/preview/OutsideThread.h"
#include "corvex/preview/ScreenAudit.h"
#include "corvex/preview/script/PanelWindow.h"
#include "corvex/preview/script/PreviewScript.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

//! \a places are those in the script; the last ones may be missing.
Exit printProblems(const ProblemLog &log, const QStringList &places)
{
    for (qsizetype i = 0; i < log.problems().size(); ++i) {
        const QString place = places.value(i);
        complain(log.problems().at(i).toString() + (place.isEmpty() ? QString() : u" (%1)"_s.arg(place)));
    }
    return log.problems().isEmpty() ? Exit::Done : Exit::Problems;
}

bool save(PanelWindow &window, const QString &folder, const QString &name)
{
    const QString path = QDir(folder).filePath(name + u".png"_s);
    QString error = u"\"%1\" is not a valid name for a picture."_s.arg(name);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    bool isSaved = name == QFileInfo(name).fileName() && window.picture().save(&bytes, "PNG");
    if (isSaved) {
        OutsideThread::run([&] {
            isSaved = Common::FileHelper::makeFolder(folder, &error)
                      && Common::FileHelper::writeFile(path, bytes.data(), &error);
        });
    }
    if (isSaved) {
        print(path);
    } else {
        complain(error);
    }
    return isSaved;
}

Exit shootAll(PreviewSession &session, PanelWindow &window, const QString &folder)
{
    for (const QString &name : session.screens()) {
        if (!session.showScreen(name)) {
            continue;
        }
        // Let the rules run first, so that the first points of logs contain their results.
        session.settle();
        session.panel().clock().advance(0);
        if (!save(window, folder, name)) {
            return Exit::File;
        }
    }
    return Exit::Done;
}

Exit runScript(PreviewSession &session, PanelWindow &window, const QString &scriptFile, const QString &folder,
               QStringList &problemPlaces)
{
    QFile file(scriptFile);
    QByteArray text;
    OutsideThread::run([&file, &text] {
        if (file.open(QIODevice::ReadOnly)) {
            text = file.read(Bounds::longestFile); // also from a pipe
        }
    });
    if (!file.isOpen()) {
        complain(u"\"%1\" cannot be read: %2"_s.arg(scriptFile, file.errorString()));
        return Exit::File;
    }
    const auto shoot = [&window, &folder](const QString &name) {
        return save(window, folder.isEmpty() ? u"."_s : folder, name);
    };
    PreviewScript script(session, window, shoot);
    const QStringList failures = script.run(QString::fromUtf8(text));
    for (const QString &failure : failures) {
        print(u"%1:%2"_s.arg(scriptFile, failure));
    }
    for (const int line : script.problemLines()) {
        problemPlaces.append(line > 0 ? u"%1:%2"_s.arg(scriptFile, QString::number(line)) : QString());
    }
    return failures.isEmpty() ? Exit::Done : Exit::Problems;
}

void append(const QList<PanelProblem> &problems, QJsonArray &entries)
{
    for (const PanelProblem &problem : problems) {
        entries.append(QJsonObject{{u"object"_s, problem.element}, {u"message"_s, problem.message}});
    }
}

} // namespace

Exit runUnattended(PreviewSession &session, const QString &scriptFile, const QString &folder)
{
    PanelWindow window(session);
    QStringList places;
    const Exit result = scriptFile.isEmpty() ? shootAll(session, window, folder)
                                             : runScript(session, window, scriptFile, folder, places);
    const Exit problems = printProblems(session.panel().problems(), places);
    return result == Exit::Done ? problems : result;
}

Exit runAudit(PreviewSession &session)
{
    PanelWindow window(session);
    QJsonArray entries;
    for (const QString &name : session.screens()) {
        if (session.showScreen(name)) {
            window.picture(); // computes the layout of the window
            append(ScreenAudit::find(session.screenItem()), entries);
        }
    }
    append(session.panel().problems().problems(), entries);
    print(QString::fromUtf8(QJsonDocument(entries).toJson(QJsonDocument::Compact)));
    return entries.isEmpty() ? Exit::Done : Exit::Problems;
}

} // namespace Halvane::Corvex::Preview
