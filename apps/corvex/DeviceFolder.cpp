// SPDX-License-Identifier: MIT
#include "DeviceFolder.h"

#include "corvex/common/FileHelper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

namespace {

const QString projectFolder = u"project"_s;
const QString zippedProject = u"Project.kdproj.zip"_s;
constexpr QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

//! Whether a build makes, or copies, files of that name.
bool isBuilt(const QString &name)
{
    const QString extension = QFileInfo(name).suffix().toLower();
    return name == zippedProject || (name.startsWith("qml_"_L1) && extension == "qml"_L1)
           || extension == "kdrc"_L1 || Common::FileHelper::validImageExtensions().contains(extension);
}

bool copyFiles(const QDir &source, const QDir &target, QString *error)
{
    for (const QString &name : source.entryList(everything)) {
        const QString from = source.filePath(name);
        const QString to = target.filePath(name);
        // A disk that fills up may show in the size alone.
        if (!QFile::copy(from, to) || QFileInfo(to).size() != QFileInfo(from).size()) {
            *error = u"\"%1\" cannot be written. Is there room on the disk?"_s.arg(name);
            return false;
        }
    }
    return true;
}

//! The folders that make a path, the innermost first, as far as they are missing.
QStringList missingFolders(const QString &path)
{
    QStringList missing;
    QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (!QFileInfo::exists(folder)) {
        missing.append(folder);
        folder = QFileInfo(folder).path();
    }
    return missing;
}

} // namespace

QString DeviceFolder::projectPath() const
{
    return QDir(m_path).filePath(projectFolder);
}

bool DeviceFolder::fail(QString *error, const QString &message) const
{
    *error = message;
    return false;
}

bool DeviceFolder::bring(const QString &source, QString *error)
{
    if (const QFileInfo info(m_path); info.exists() && !info.isDir()) {
        return fail(error, u"\"%1\" is not a folder."_s.arg(m_path));
    }
    if (const QString foreign = foreignEntry(QDir(source).entryList(everything)); !foreign.isEmpty()) {
        return fail(error,
                    u"\"%1\" holds \"%2\", which is no part of a build, and stays as it is. Choose a new or "
                    "an empty folder."_s.arg(m_path, foreign));
    }
    const QStringList made = missingFolders(m_path);
    if (QDir().mkpath(m_path) && replace(source, error)) {
        return true;
    }
    if (error->isEmpty()) {
        fail(error, u"The folder \"%1\" cannot be made."_s.arg(m_path));
    }
    for (const QString &folder : made) {
        QDir().rmdir(folder);
    }
    return false;
}

QString DeviceFolder::foreignEntry(const QStringList &newFiles) const
{
    const QFileInfoList entries = QDir(m_path).entryInfoList(everything);
    for (const QFileInfo &entry : entries) {
        if (entry.fileName() != projectFolder || !entry.isDir() || entry.isSymLink()) {
            return entry.fileName();
        }
    }
    if (entries.isEmpty()) {
        return {};
    }
    const QFileInfoList files = QDir(projectPath()).entryInfoList(everything);
    for (const QFileInfo &file : files) {
        const QString name = file.fileName();
        if (!file.isFile() || file.isSymLink() || !(isBuilt(name) || newFiles.contains(name))) {
            return u"%1/%2"_s.arg(projectFolder, name);
        }
    }
    return QFileInfo(QDir(projectPath()).filePath(zippedProject)).isFile() ? QString() : projectFolder;
}

bool DeviceFolder::replace(const QString &source, QString *error) const
{
    // The new files grow beside their place, on the same disk, and are moved there when they are complete.
    const QTemporaryDir workshop(QDir(m_path).filePath(u".corvex-build-XXXXXX"_s));
    const QDir draft(workshop.filePath(projectFolder));
    if (!workshop.isValid() || !QDir().mkdir(draft.path())) {
        return fail(error,
                    u"The folder \"%1\" cannot be written to: %2"_s.arg(m_path, workshop.errorString()));
    }
    if (!copyFiles(QDir(source), draft, error)) {
        return false;
    }
    const QString previous = workshop.filePath(u"previous"_s);
    const bool hasPrevious = QFileInfo::exists(projectPath());
    if (hasPrevious && !QDir().rename(projectPath(), previous)) {
        return fail(error, u"The earlier build \"%1\" cannot be moved."_s.arg(projectPath()));
    }
    if (!QDir().rename(draft.path(), projectPath())) {
        if (hasPrevious) {
            QDir().rename(previous, projectPath());
        }
        return fail(error, u"The folder \"%1\" cannot be made."_s.arg(projectPath()));
    }
    return true;
}

} // namespace Halvane::Corvex::Tool
