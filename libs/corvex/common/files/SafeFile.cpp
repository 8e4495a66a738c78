// SPDX-License-Identifier: MIT
#include "corvex/common/files/SafeFile.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FileSync.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>

#include <cerrno>
#include <fcntl.h>
#include <mutex>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

const QString draftPrefix = u".corvex-draft-"_s; // followed by eight digits

bool isSame(int file, const QByteArray &path)
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(file, &opened) == 0 && lstat(path.constData(), &named) == 0 && opened.st_ino == named.st_ino
           && opened.st_dev == named.st_dev;
}

//! Creates a file that removeAbandoned() does not touch: it is locked right after its creation, and created
//! again if it was removed in between. Returns -1 with errno on failure.
int openLocked(const QByteArray &path)
{
    constexpr mode_t readAndWrite = 0666; // minus the user's umask
    for (;;) {
        const int file = open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, readAndWrite);
        if (file < 0) {
            return -1;
        }
        flock(file, LOCK_EX);
        if (isSame(file, path)) {
            return file;
        }
        close(file);
    }
}

//! Whether this program writes to that folder for the first time.
bool isFirstFileIn(const QString &folder)
{
    static std::mutex mutex;
    static QSet<QString> known;
    const std::lock_guard lock(mutex);
    const qsizetype before = known.size();
    known.insert(QFileInfo(folder).absoluteFilePath());
    return known.size() > before;
}

} // namespace

SafeFile::SafeFile(const QString &path)
    : m_path(path)
{ }

SafeFile::~SafeFile()
{
    cancelWriting();
}

bool SafeFile::openForWriting(QString *error)
{
    m_failure.clear();
    const QFileInfo target(m_path);
    m_target = target.isSymLink() && target.exists() ? target.canonicalFilePath() : m_path;
    // Replacing a device or a pipe would replace it for every program.
    if (target.exists() && !target.isFile()) {
        m_failure = LocalizationHelper::coreString(u"This is not a file."_s);
    } else if (target.exists() && !target.isWritable()) {
        m_failure = LocalizationHelper::coreString(u"It is protected."_s);
    } else if (m_path.isEmpty()) {
        m_failure = LocalizationHelper::coreString(u"It has no name."_s);
    } else if (!makeDraft()) {
        m_failure = FileSync::reason();
    }
    return m_failure.isEmpty() || fail(error);
}

bool SafeFile::makeDraft()
{
    const QString folder = QFileInfo(m_target).path();
    if (isFirstFileIn(folder)) {
        removeAbandoned(folder);
    }
    int file = -1;
    do {
        const QString number = QString::number(QRandomGenerator::global()->generate(), 16);
        m_draft = QDir(folder).filePath(draftPrefix + number.rightJustified(8, u'0'));
        file = openLocked(QFile::encodeName(m_draft));
    } while (file < 0 && errno == EEXIST);
    struct stat old = {};
    if (file >= 0 && stat(QFile::encodeName(m_target).constData(), &old) == 0) {
        constexpr mode_t permissions = 07777;
        fchmod(file, old.st_mode & permissions);
    }
    if (file < 0 || !open(file, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        m_draft.clear();
        return false;
    }
    return true;
}

qint64 SafeFile::writeData(const char *data, qint64 size)
{
    const qint64 written = QFile::writeData(data, size);
    if (written != size && m_failure.isEmpty()) {
        m_failure = FileHelper::writeError(*this);
    }
    return written;
}

void SafeFile::cancelWriting()
{
    if (!m_draft.isEmpty()) {
        QFile::remove(std::exchange(m_draft, {}));
    }
    QFile::close();
}

bool SafeFile::commit(QString *error, FileStamp *stamp)
{
    if (m_failure.isEmpty() && (m_draft.isEmpty() || !flush())) {
        m_failure = FileHelper::writeError(*this);
    }
    // The rename keeps the number of the file.
    if (m_failure.isEmpty() && stamp) {
        *stamp = FileStamp::of(m_draft);
    }
    if (m_failure.isEmpty() && !moveDraft()) {
        m_failure = FileSync::reason();
    }
    cancelWriting();
    return m_failure.isEmpty() || fail(error);
}

bool SafeFile::moveDraft()
{
    // The lock ends when the draft, already renamed, is closed.
    if (fsync(handle()) != 0 && errno != EINVAL) {
        return false;
    }
    if (!FileSync::replace(m_draft, m_target)) {
        return false;
    }
    m_draft.clear();
    return FileSync::sync(QFileInfo(m_target).path());
}

void SafeFile::removeAbandoned(const QString &folder)
{
    const QFileInfoList drafts = QDir(folder).entryInfoList({draftPrefix + u"????????"_s},
                                                            QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &draft : drafts) {
        const QByteArray path = QFile::encodeName(draft.filePath());
        const int file = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
        if (file < 0) {
            continue;
        }
        if (flock(file, LOCK_EX | LOCK_NB) == 0 && isSame(file, path)) {
            unlink(path.constData());
        }
        ::close(file);
    }
}

bool SafeFile::fail(QString *error)
{
    if (error) {
        *error = LocalizationHelper::coreString(u"The file \"%1\" cannot be written: %2"_s)
                     .arg(QDir::toNativeSeparators(fileName()), m_failure);
    }
    return false;
}

} // namespace Halvane::Corvex::Common
