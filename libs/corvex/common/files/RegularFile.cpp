// SPDX-License-Identifier: MIT
#include "corvex/common/files/RegularFile.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

//! Opens the file and checks the opened file, so that nobody can exchange it in between.
bool open(QFile &file, const QString &path, qint64 most, RegularFile::Links links, QString *error)
{
    const int noLinks = links == RegularFile::Links::Refuse ? O_NOFOLLOW : 0;
    const int handle =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | noLinks);
    if (handle < 0) {
        *error =
            noLinks != 0 && errno == ELOOP
                ? u"\"%1\" is a link. Name the file itself."_s.arg(path)
                : u"\"%1\" cannot be read: %2."_s.arg(path, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    struct stat facts
    { };
    file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    if (fstat(handle, &facts) != 0 || !S_ISREG(facts.st_mode)) {
        *error = u"\"%1\" cannot be read: it is not a regular file."_s.arg(path);
    } else if (facts.st_size > most) {
        *error = u"\"%1\" cannot be read: it is larger than %2 MB."_s.arg(
            path, QString::number(most / 1024 / 1024));
    } else {
        return true;
    }
    return false;
}

} // namespace

bool RegularFile::read(const QString &path, qint64 most, QByteArray *bytes, QString *error, Links links)
{
    QFile file;
    if (!open(file, path, most, links, error)) {
        return false;
    }
    *bytes = file.read(file.size());
    if (file.error() != QFileDevice::NoError) {
        *error = u"\"%1\" cannot be read: %2."_s.arg(path, file.errorString());
        return false;
    }
    return true;
}

QString RegularFile::problem(const QString &path, qint64 most)
{
    QFile file;
    QString error;
    open(file, path, most, Links::Follow, &error);
    return error;
}

} // namespace Halvane::Corvex::Common
