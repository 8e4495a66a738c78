// SPDX-License-Identifier: MIT
#include "corvex/common/FileHelper.h"

#include "corvex/common/SafeFile.h"
#include "corvex/common/VariantStream.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <filesystem>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

// --- Folders ---

QString FileHelper::getStandardTemporatyLocation()
{
    const QString shared = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
#ifdef Q_OS_UNIX
    // The folder is often everybody's: a fixed name in it could be taken, or be a link laid by another user.
    const QString own = u"%1/corvex-%2"_s.arg(shared, QString::number(geteuid()));
    const auto onlyOwner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QDir().mkdir(own, onlyOwner);
    const QFileInfo info(own);
    if (info.isDir() && !info.isSymLink() && info.ownerId() == geteuid())
        return own;
    const QString cache =
        QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/corvex"_L1;
    QDir().mkpath(cache);
    return cache;
#else
    return shared;
#endif
}

bool FileHelper::removeDirectory(const QString &path)
{
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    if (!info.isSymLink()) {
        const QString canonical =
            info.exists() ? info.canonicalFilePath() : QDir::cleanPath(info.absoluteFilePath());
        const QString home = QFileInfo(QDir::homePath()).canonicalFilePath();
        const QString below = canonical.endsWith(u'/') ? canonical : canonical + u'/';
        if (QDir(canonical).isRoot() || (home + u'/').startsWith(below))
            return false;
    }
    std::error_code error;
    std::filesystem::remove_all(info.filesystemAbsoluteFilePath(), error);
    return !error;
}

// --- Files ---

bool FileHelper::writeFile(const QString &path, const QByteArray &bytes, QString *error)
{
    SafeFile file(path);
    if (!file.openForWriting(error))
        return false;
    file.write(bytes);
    return file.commit(error);
}

bool FileHelper::variantToFile(const QVariant &value, const QString &path, bool compressed)
{
    QByteArray bytes;
    if (!VariantStream::write(value, bytes))
        return false;
    return writeFile(path, compressed ? qCompress(bytes) : bytes);
}

QVariant FileHelper::fileToVariant(const QString &path, bool *ok)
{
    constexpr qint64 mostBytes = qint64(256) << 20;
    QVariant value;
    QFile file(path);
    bool good = file.open(QIODevice::ReadOnly) && file.size() <= mostBytes;
    if (good)
        value = VariantStream::read(file.read(mostBytes), mostBytes, good);
    if (ok)
        *ok = good;
    return value;
}

QString FileHelper::md5(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Md5);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return QString::fromLatin1(hash.result().toHex());
}

// --- Images ---

namespace {

struct ImageFormat
{
    QLatin1StringView name;
    QByteArrayView firstBytes;
};

constexpr ImageFormat rasterFormats[] = {
    {"png"_L1, "\x89PNG\r\n\x1a\n"},
    {"jpg"_L1, "\xff\xd8\xff"},
    {"bmp"_L1, "BM"},
    {"gif"_L1, "GIF87a"},
    {"gif"_L1, "GIF89a"},
};

QString rasterFormatOf(const QByteArray &head)
{
    for (const ImageFormat &format : rasterFormats) {
        if (head.startsWith(format.firstBytes))
            return format.name;
    }
    return {};
}

//! Whether the root is that of a drawing; wellFormed tells about the rest.
bool hasSvgRoot(QFile &file, bool &wellFormed)
{
    constexpr auto svgNamespace = "http://www.w3.org/2000/svg"_L1;
    QXmlStreamReader reader(&file);
    const bool root = reader.readNextStartElement() && reader.name() == "svg"_L1
                      && (reader.namespaceUri().isEmpty() || reader.namespaceUri() == svgNamespace);
    while (root && !reader.atEnd())
        reader.readNext();
    wellFormed = root && !reader.hasError();
    return root;
}

bool canBeDecoded(QFile &file, const QString &format)
{
    QImageReader reader(&file, format.toLatin1());
    reader.setAutoDetectImageFormat(false);
    return !reader.read().isNull();
}

} // namespace

const QStringList &FileHelper::validImageExtensions()
{
    static const QStringList extensions{u"png"_s, u"jpg"_s, u"jpeg"_s, u"bmp"_s, u"gif"_s, u"svg"_s};
    return extensions;
}

bool FileHelper::isValidImage(const QString &path, QString *format)
{
    QFile file(path);
    QString found;
    bool whole = false;
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)) {
        found = rasterFormatOf(file.peek(16));
        if (!found.isEmpty())
            whole = canBeDecoded(file, found);
        else if (hasSvgRoot(file, whole))
            found = u"svg"_s;
    }
    if (format)
        *format = found;
    const QString extension = QFileInfo(path).suffix().toLower();
    return whole && found == (extension == "jpeg"_L1 ? u"jpg"_s : extension);
}

} // namespace Halvane::Corvex::Common
