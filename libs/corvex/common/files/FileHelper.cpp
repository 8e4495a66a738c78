// SPDX-License-Identifier: MIT
#include "corvex/common/files/FileHelper.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/PictureFile.h"
#include "corvex/common/VariantStream.h"
#include "corvex/common/files/SafeFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <array>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

QString FileHelper::getStandardTemporatyLocation()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
#ifdef Q_OS_UNIX
    // The folder is often shared by all users. Another user could occupy a fixed name in it, or place a link
    // there.
    folder += u"/corvex-"_s + QString::number(geteuid());
    QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QFileInfo info(folder);
    if (!info.isDir() || info.isSymLink() || info.ownerId() != geteuid()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + "/corvex"_L1;
        QDir().mkpath(folder);
    }
#endif
    return folder;
}

namespace {

//! The path of the folder itself without links, except possibly its last part. Resolves ".." and trailing
//! slashes after links as the system does, not by the letters of the path. Empty if nothing exists there.
std::filesystem::path physicalPath(const QString &path)
{
    std::error_code error;
    std::filesystem::path given = std::filesystem::absolute(QFileInfo(path).filesystemFilePath(), error);
    while (!given.has_filename() && given.has_relative_path()) {
        given = given.parent_path();
    }
    const std::filesystem::path name = given.filename();
    if (name.empty() || name == "." || name == "..") {
        return std::filesystem::canonical(given, error);
    }
    const std::filesystem::path folder = std::filesystem::canonical(given.parent_path(), error);
    return error ? std::filesystem::path() : folder / name;
}

bool holdsHome(const std::filesystem::path &folder)
{
    std::error_code error;
    const auto home = std::filesystem::canonical(QFileInfo(QDir::homePath()).filesystemFilePath(), error);
    return std::mismatch(folder.begin(), folder.end(), home.begin(), home.end()).first == folder.end();
}

} // namespace

bool FileHelper::removeDirectory(const QString &path)
{
    if (path.isEmpty()) {
        return false;
    }
    const std::filesystem::path folder = physicalPath(path);
    if (folder.empty()) {
        return true;
    }
    if (!folder.has_relative_path() || holdsHome(folder)) {
        return false;
    }
    std::error_code error;
    std::filesystem::remove_all(folder, error);
    return !error;
}

bool FileHelper::makeFolder(const QString &path, QString *error)
{
    std::error_code failure;
    std::filesystem::create_directories(QFileInfo(QDir::cleanPath(path)).filesystemFilePath(), failure);
    if (failure && error) {
        *error = LocalizationHelper::coreString(u"The folder \"%1\" cannot be created: %2"_s)
                     .arg(path, QString::fromLocal8Bit(failure.message().c_str()));
    }
    return !failure;
}

bool FileHelper::copyFile(const QString &source, const QString &target, QString *error)
{
    // QFile::copy() would not report a full disk.
    QFile from(source);
    QFile to(target);
    QString reason;
    if (!from.open(QIODevice::ReadOnly)) {
        reason = from.errorString();
    } else if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        reason = to.errorString();
    } else {
        QByteArray block;
        do {
            block = from.read(1 << 18);
        } while (!block.isEmpty() && to.write(block) == block.size());
        if (!block.isEmpty() || !to.flush()) {
            reason = writeError(to);
        } else if (from.error() != QFileDevice::NoError) {
            reason = from.errorString();
        }
        if (!reason.isEmpty()) {
            to.remove();
        }
    }
    if (!reason.isEmpty() && error) {
        *error = LocalizationHelper::coreString(u"The file \"%1\" cannot be copied to \"%2\": %3"_s)
                     .arg(source, target, reason);
    }
    return reason.isEmpty();
}

QString FileHelper::writeError(const QFileDevice &file)
{
    const QString text = file.errorString();
    return text == QFile().errorString() ? LocalizationHelper::coreString(u"The disk is full."_s) : text;
}

bool FileHelper::readFile(const QString &path, QByteArray *bytes, QString *error)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        *bytes = file.readAll();
    }
    const bool isRead = file.error() == QFileDevice::NoError;
    if (!isRead && error) {
        *error = LocalizationHelper::coreString(QStringLiteral("The file \"%1\" cannot be read: %2"))
                     .arg(path, file.errorString());
    }
    return isRead;
}

bool FileHelper::writeFile(const QString &path, const QByteArray &bytes, QString *error)
{
    SafeFile file(path);
    if (!file.openForWriting(error)) {
        return false;
    }
    file.write(bytes);
    return file.commit(error);
}

bool FileHelper::variantToFile(const QVariant &value, const QString &path, bool compressed, QString *error)
{
    QByteArray bytes;
    if (!VariantStream::write(value, bytes)) {
        if (error) {
            *error =
                LocalizationHelper::coreString(u"The value has a type that the file \"%1\" cannot store."_s)
                    .arg(QDir::toNativeSeparators(path));
        }
        return false;
    }
    return writeFile(path, compressed ? qCompress(bytes) : bytes, error);
}

QVariant FileHelper::fileToVariant(const QString &path, bool *ok)
{
    constexpr qint64 mostBytes = qint64(64) << 20;
    QVariant value;
    QFile file(path);
    bool good = file.open(QIODevice::ReadOnly) && file.size() <= mostBytes;
    if (good) {
        value = VariantStream::read(file.read(mostBytes), mostBytes, good);
    }
    if (ok) {
        *ok = good;
    }
    return value;
}

QString FileHelper::md5(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Md5);
    // Do not read pipes and devices; they may never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || !hash.addData(&file)) {
        return {};
    }
    return QString::fromLatin1(hash.result().toHex());
}

namespace {

struct ImageFormat
{
    QLatin1StringView name;
    QByteArrayView firstBytes;
};

constexpr auto rasterFormats = std::to_array<ImageFormat>({
    {"png"_L1, "\x89PNG\r\n\x1a\n"},
    {"jpg"_L1, "\xff\xd8\xff"},
    {"bmp"_L1, "BM"},
    {"gif"_L1, "GIF87a"},
    {"gif"_L1, "GIF89a"},
});

QString rasterFormatOf(const QByteArray &head)
{
    for (const ImageFormat &format : rasterFormats) {
        if (head.startsWith(format.firstBytes)) {
            return format.name;
        }
    }
    return {};
}

//! Whether the root element is that of a drawing. wellFormed says whether the rest can be parsed.
bool hasSvgRoot(QFile &file, bool &wellFormed)
{
    constexpr auto svgNamespace = "http://www.w3.org/2000/svg"_L1;
    QXmlStreamReader reader(&file);
    const bool root = reader.readNextStartElement() && reader.name() == "svg"_L1
                      && (reader.namespaceUri().isEmpty() || reader.namespaceUri() == svgNamespace);
    while (root && !reader.atEnd()) {
        reader.readNext();
    }
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
        if (!found.isEmpty()) {
            whole = canBeDecoded(file, found);
        } else if (hasSvgRoot(file, whole)) {
            found = u"svg"_s;
            whole = whole && PictureFile::problem(path).isEmpty();
        }
    }
    if (format) {
        *format = found;
    }
    const QString extension = QFileInfo(path).suffix().toLower();
    return whole && found == (extension == "jpeg"_L1 ? u"jpg"_s : extension);
}

} // namespace Halvane::Corvex::Common
