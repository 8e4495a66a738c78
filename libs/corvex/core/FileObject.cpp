// SPDX-License-Identifier: MIT
#include "corvex/core/FileObject.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/Progress.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"
#include "corvex/common/files/TemporaryFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! A translated text with one or two placeholders filled.
QString message(const QString &english, const QString &first, const QString &second = {})
{
    const QString text = Common::LocalizationHelper::coreString(english);
    return second.isNull() ? text.arg(first) : text.arg(first, second);
}

//! Whether the name is a plain file name on every system.
bool isSingleName(const QString &name)
{
    return name != "."_L1 && name != ".."_L1 && !name.contains(u'/') && !name.contains(u'\\')
           && !name.contains(QChar::Null);
}

bool exists(const QString &path)
{
    const QFileInfo info(path);
    // A broken link does not "exist" but still occupies the name.
    return info.exists() || info.isSymLink();
}

bool renameEntry(const QString &folder, const QString &from, const QString &to)
{
    return from == to || QDir(folder).rename(from, to);
}

} // namespace

QString FileObject::baseName() const
{
    return u"File"_s;
}

QString FileObject::displayName() const
{
    return Common::LocalizationHelper::coreString(u"File Object"_s);
}

QString FileObject::createSubPath() const
{
    return {};
}

QString FileObject::createFullFilePath(const QString &parentPath, const QString &subPath,
                                       const QString &fileName)
{
    if (parentPath.isEmpty() || fileName.isEmpty() || !QFileInfo(parentPath).isDir() || !isSingleName(subPath)
        || !isSingleName(fileName)) {
        return {};
    }
    return subPath.isEmpty() ? u"%1/%2"_s.arg(parentPath, fileName)
                             : u"%1/%2/%3"_s.arg(parentPath, subPath, fileName);
}

void FileObject::setFileFields(const QString &parentPath, const QString &subPath, const QString &fileName)
{
    m_parentPath = parentPath;
    m_subPath = subPath;
    m_fileName = fileName;
    m_fullFilePath = createFullFilePath(parentPath, subPath, fileName);
    afterFileFieldsChanged();
}

void FileObject::resetFileFields()
{
    setFileFields({}, {}, {});
}

void FileObject::afterFileFieldsChanged() { }

QString FileObject::folderPath() const
{
    return m_fullFilePath.isEmpty() ? QString() : QFileInfo(m_fullFilePath).path();
}

bool FileObject::finish(const QString &error)
{
    m_fileError = error;
    return error.isEmpty();
}

bool FileObject::fileExists(const QString &path) const
{
    const QString file = createFullFilePath(path, createSubPath(), createFileName());
    return !file.isEmpty() && exists(file);
}

bool FileObject::createFile(const QString &path)
{
    const QString sub = createSubPath();
    const QString file = createFullFilePath(path, sub, createFileName());
    if (file.isEmpty()) {
        return finish(QFileInfo(path).isDir()
                          ? message(u"\"%1\" cannot be the name of a file."_s, getIdName())
                          : message(u"The folder \"%1\" does not exist."_s, path));
    }
    if (exists(file)) {
        return finish(message(u"The file \"%1\" exists already."_s, file));
    }
    const QDir parent(path);
    const bool makesFolder = !sub.isEmpty() && !parent.exists(sub);
    if (!(makesFolder ? createWithFolder(parent.path(), sub, &m_fileError)
                      : saveToFile(this, file, &m_fileError))) {
        return false;
    }
    setFileFields(parent.absolutePath(), sub, createFileName());
    return finish({});
}

//! Creates the folder together with its file in one step.
bool FileObject::createWithFolder(const QString &parent, const QString &sub, QString *error)
{
    const Common::TemporaryFolder workshop(parent, u".corvex-new"_s);
    const QString draft = workshop.filePath(sub);
    const QString folder = u"%1/%2"_s.arg(parent, sub);
    if (!workshop.isValid()) {
        *error = message(u"The folder \"%1\" cannot be created: %2"_s, folder, workshop.errorString());
        return false;
    }
    if (!Common::FileHelper::makeFolder(draft, error)
        || !saveToFile(this, u"%1/%2"_s.arg(draft, createFileName()), error)) {
        return false;
    }
    if (!Common::FileSync::move(draft, folder) || !Common::FileSync::sync(parent)) {
        *error = message(u"The folder \"%1\" cannot be created: %2"_s, folder, Common::FileSync::reason());
        return false;
    }
    return true;
}

bool FileObject::loadFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return finish(info.exists() ? message(u"\"%1\" is not a file."_s, path)
                                    : message(u"The file \"%1\" does not exist."_s, path));
    }
    // The object is validated as soon as it is read, and validation looks up files beside its own.
    const QFileInfo folder(info.absolutePath());
    if (createSubPath().isEmpty() || folder.fileName().isEmpty()) {
        setFileFields(folder.filePath(), {}, info.fileName());
    } else {
        setFileFields(folder.path(), folder.fileName(), info.fileName());
    }
    if (!readFile(path)) {
        resetFileFields();
        return false;
    }
    return true;
}

bool FileObject::readFile(const QString &path)
{
    m_readNotes.clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return finish(message(u"The file \"%1\" cannot be read: %2"_s, path, file.errorString()));
    }
    ObjectXmlReader reader(&file);
    if (m_progress) {
        m_progress->begin(message(u"Reading %1"_s, QFileInfo(path).fileName()), file.size());
        reader.setProgress(m_progress);
    }
    const bool done = reader.read(this);
    m_readNotes = reader.notes();
    return finish(done ? QString()
                       : u"%1:%2:%3: %4"_s.arg(path, QString::number(reader.errorLine()),
                                               QString::number(reader.errorColumn()), reader.errorString()));
}

bool FileObject::saveFile()
{
    if (m_fullFilePath.isEmpty() || !QFileInfo(m_fullFilePath).isFile()) {
        return finish(message(u"The file \"%1\" does not exist."_s, m_fullFilePath));
    }
    m_fileError.clear();
    return writeAgain(&m_fileError);
}

bool FileObject::writeAgain(QString *error)
{
    return saveToFile(this, m_fullFilePath, error);
}

bool FileObject::renameFile(const QString &oldName, const QString &newName)
{
    if (m_fullFilePath.isEmpty() || !QFileInfo(m_fullFilePath).isFile()) {
        return finish(message(u"The file \"%1\" does not exist."_s, m_fullFilePath));
    }
    const QFileInfo old(m_fileName);
    const QString sub = !m_subPath.isEmpty() && m_subPath == oldName ? newName : m_subPath;
    const QString file =
        old.completeBaseName() == oldName ? newName + m_fileName.mid(oldName.size()) : m_fileName;
    if (newName.isEmpty() || createFullFilePath(m_parentPath, sub, file).isEmpty()) {
        return finish(message(u"\"%1\" cannot be the name of a file."_s, newName));
    }
    const QString folder = folderPath();
    for (const QString &target : {sub == m_subPath ? QString() : m_parentPath + u'/' + sub,
                                  file == m_fileName ? QString() : folder + u'/' + file}) {
        if (!target.isEmpty() && exists(target)) {
            return finish(message(u"The file \"%1\" exists already."_s, target));
        }
    }
    if (!renameEntries(file, sub, &m_fileError)) {
        return false;
    }
    setFileFields(m_parentPath, sub, file);
    return finish({});
}

bool FileObject::renameEntries(const QString &fileName, const QString &subPath, QString *error)
{
    const QString folder = folderPath();
    if (!renameEntry(folder, m_fileName, fileName)) {
        *error = message(u"The file \"%1\" cannot be renamed: %2"_s, m_fullFilePath, qt_error_string());
        return false;
    }
    if (!renameEntry(m_parentPath, m_subPath, subPath)) {
        *error = message(u"The folder \"%1\" cannot be renamed: %2"_s, folder, qt_error_string());
        renameEntry(folder, fileName, m_fileName);
        return false;
    }
    return true;
}

bool FileObject::deleteFile()
{
    if (m_fullFilePath.isEmpty() || !QFile::remove(m_fullFilePath)) {
        return finish(message(u"The file \"%1\" cannot be deleted."_s, m_fullFilePath));
    }
    if (!m_subPath.isEmpty() && m_subPath == createSubPath()) {
        QDir(m_parentPath).rmdir(m_subPath); // fails if the user has other files in it, which is fine
    }
    resetFileFields();
    return finish({});
}

} // namespace Halvane::Corvex::Designer
