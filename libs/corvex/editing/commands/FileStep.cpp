// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/FileStep.h"

#include "corvex/common/FileHelper.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::FileHelper;
using Common::LocalizationHelper;

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool readFile(const QString &path, QByteArray &bytes, QString &error)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        bytes = file.readAll();
    }
    if (file.error() != QFileDevice::NoError) {
        error = LocalizationHelper::coreString(u"The file \"%1\" cannot be read: %2"_s)
                    .arg(path, file.errorString());
        return false;
    }
    return true;
}

bool hasContents(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

} // namespace

FileStep::FileStep(Project *project, const QString &name)
    : m_project(project)
    , m_name(name)
{ }

QString FileStep::pathOf(const QString &name) const
{
    const QString folder = m_project ? m_project->imagesPath() : QString();
    return folder.isEmpty() ? QString() : u"%1/%2"_s.arg(folder, name);
}

bool FileStep::isUsed(const QString &name) const
{
    return m_project && m_project->imageResources()->hasListItem(name);
}

void FileStep::removeUnused(const QString &name) const
{
    if (const QString path = pathOf(name); !path.isEmpty() && !isUsed(name)) {
        QFile::remove(path);
    }
}

QString FileStep::freeName(const QString &name) const
{
    QString free;
    int number = 1;
    do {
        free = u"%1.tmp%2"_s.arg(name, QString::number(number++));
    } while (isThere(pathOf(free)));
    return free;
}

void FileStep::lookAgain(const QString &name) const
{
    if (auto *image = kindCast<ImageResource>(m_project->imageResources()->getListItem(name))) {
        image->updateFileFields();
    }
}

PlaceFileStep::~PlaceFileStep()
{
    if (!m_isDone) {
        PlaceFileStep::cleanJunkFiles();
    }
}

bool PlaceFileStep::readSource(QByteArray &bytes, QString &error) const
{
    bytes = m_bytes;
    return m_source.isEmpty() || readFile(m_source, bytes, error);
}

bool PlaceFileStep::redo(QString &error)
{
    m_isDone = bringBack() || place(error);
    return m_isDone;
}

//! What was placed once is as good as the source, which may be gone by now.
bool PlaceFileStep::bringBack()
{
    if (m_spareName.isEmpty() || isThere(path()) || !QFile::rename(pathOf(m_spareName), path())) {
        return false;
    }
    m_spareName.clear();
    return true;
}

bool PlaceFileStep::place(QString &error)
{
    QByteArray bytes;
    if (!readSource(bytes, error)) {
        return false;
    }
    if (isThere(path())) {
        const bool isSame = hasContents(path(), bytes);
        if (!isSame) {
            error = LocalizationHelper::coreString(u"The file \"%1\" exists already."_s).arg(path());
        }
        return isSame;
    }
    QDir().mkpath(project()->imagesPath());
    m_isMade = FileHelper::writeFile(path(), bytes, &error);
    return m_isMade;
}

void PlaceFileStep::undo()
{
    m_isDone = false;
    if (!m_isMade) {
        return;
    }
    const QString spare = freeName(name());
    m_isMade = QFile::rename(path(), pathOf(spare));
    if (m_isMade) {
        m_spareName = spare;
    }
}

void PlaceFileStep::cleanJunkFiles()
{
    if (!m_spareName.isEmpty()) {
        QFile::remove(pathOf(m_spareName));
    } else if (m_isMade) {
        removeUnused(name());
    }
}

bool RenameFileStep::rename(const QString &from, const QString &to, QString *error)
{
    if (!isThere(pathOf(from)) && !isThere(pathOf(to))) {
        return true; // somebody has taken the file away; the image does without, under either name
    }
    const QString between = freeName(from);
    const bool isFree = !isThere(pathOf(to)) || from.compare(to, Qt::CaseInsensitive) == 0;
    QFile file(pathOf(from));
    QString reason;
    if (isFree && file.rename(pathOf(between))) {
        if (!isThere(pathOf(to)) && file.rename(pathOf(to))) {
            return true;
        }
        reason = file.errorString();
        file.rename(pathOf(from));
    } else {
        reason = file.errorString();
    }
    if (error) {
        *error = isFree
                     ? LocalizationHelper::coreString(u"The file \"%1\" cannot be renamed to \"%2\": %3"_s)
                           .arg(pathOf(from), to, reason)
                     : LocalizationHelper::coreString(u"The file \"%1\" exists already."_s).arg(pathOf(to));
    }
    return false;
}

ReplaceFileStep::~ReplaceFileStep()
{
    // Done and not saved, the spare file holds what the project's file still shows.
    if (!m_isDone) {
        ReplaceFileStep::cleanJunkFiles();
    }
}

bool ReplaceFileStep::exchange()
{
    const QString between = freeName(name());
    const bool hasOld = isThere(path());
    if ((hasOld && !QFile::rename(path(), pathOf(between)))) {
        return false;
    }
    const bool isMissing = m_spareName.isEmpty(); // there was no file before
    if (!isMissing && !QFile::rename(pathOf(m_spareName), path())) {
        if (hasOld) {
            QFile::rename(pathOf(between), path());
        }
        return false;
    }
    m_spareName = hasOld ? between : QString();
    lookAgain(name());
    return true;
}

bool ReplaceFileStep::redo(QString &error)
{
    if (m_spareName.isEmpty() || !isThere(pathOf(m_spareName))) {
        QByteArray bytes;
        const QString spare = freeName(name());
        if (!readFile(m_source, bytes, error) || !FileHelper::writeFile(pathOf(spare), bytes, &error)) {
            return false;
        }
        m_spareName = spare;
    }
    m_isDone = exchange();
    if (!m_isDone) {
        error = LocalizationHelper::coreString(u"The file \"%1\" cannot be replaced."_s).arg(path());
    }
    return m_isDone;
}

void ReplaceFileStep::undo()
{
    exchange();
    m_isDone = false;
}

void ReplaceFileStep::cleanJunkFiles()
{
    if (!m_spareName.isEmpty()) {
        QFile::remove(pathOf(m_spareName));
    }
}

} // namespace Halvane::Corvex::Designer
