// SPDX-License-Identifier: MIT
// How ProjectDocument handles the autosave file after a crash.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileTransaction.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/common/zip/ZipHelper.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/project/Project.h"
#include "corvex/project/files/ProjectAutosave.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

QString ProjectDocument::recoveryNote() const
{
    return m_project->recoveryNote();
}

QDateTime ProjectDocument::recoveryTime() const
{
    return m_hasRecovery ? QFileInfo(m_project->autosavePath()).lastModified() : QDateTime();
}

bool ProjectDocument::discardRecovery()
{
    if (!m_hasRecovery) {
        return result(false, LocalizationHelper::coreString(u"This project has no autosave file."_s));
    }
    QFile archive(m_project->autosavePath());
    if (!archive.remove() && archive.exists()) {
        return result(false, archive.errorString());
    }
    setRecovery(false);
    return result(true, {});
}

bool ProjectDocument::recover()
{
    QString error;
    if (!m_hasRecovery) {
        return result(false, LocalizationHelper::coreString(u"This project has no autosave file."_s));
    }
    if (!mayEdit(error)) {
        return result(false, error);
    }
    const Common::TemporaryFolder folder(u"corvex-recovery"_s);
    if (!folder.isValid()) {
        return result(false, folder.errorString());
    }
    if (!Common::ZipHelper::unzip(m_project->autosavePath(), folder.path(), &error)) {
        return result(false, error);
    }
    const QString path = m_project->fullFilePath();
    const QString parent = m_project->parentPath();
    const QString sub = m_project->subPath();
    const QString file = m_project->fileName();
    if (!canLoad(folder.filePath(file))) {
        return false;
    }
    select({});
    if (!m_project->loadFile(folder.filePath(file))) {
        error = m_project->fileError();
        m_project->loadFile(path);
        return result(false, error);
    }
    m_project->setFileFields(parent, sub, file);
    if (!takeRecoveredImages(folder.path())) {
        error = m_error;
        m_project->loadFile(path);
        return result(false, error);
    }
    m_project->setFileFields(parent, sub, file); // the images check their files again
    m_history->setUnsaved();
    m_isComplete = m_isComplete && !losesParts();
    setRecovery(false);
    m_ownsAutosave = true;
    onHistoryChanged();
    return result(true, {});
}

//! Adds the images from the archive to the project's folder. The change can be undone until the next save.
bool ProjectDocument::takeRecoveredImages(const QString &folder)
{
    const QDir images(QDir(folder).filePath(QFileInfo(m_project->imagesPath()).fileName()));
    for (const QString &name : images.entryList(QDir::Files)) {
        QFile recovered(images.filePath(name));
        QFile present(QDir(m_project->imagesPath()).filePath(name));
        QString error;
        const QByteArray bytes = recovered.open(QIODevice::ReadOnly) ? recovered.readAll() : QByteArray();
        if (recovered.error() != QFileDevice::NoError) {
            return result(false, recovered.errorString());
        }
        if (present.open(QIODevice::ReadOnly) && present.readAll() == bytes) {
            continue;
        }
        const QString inFolder = QDir(m_project->folderPath()).relativeFilePath(present.fileName());
        Common::FileTransaction *files = m_project->beginFileChanges(&error);
        if (!files || (present.exists() && files->setAside(inFolder).isEmpty())
            || !files->place(inFolder, bytes, &error)) {
            return result(false, error);
        }
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
