// SPDX-License-Identifier: MIT
#include "corvex/common/zip/ZipHelper.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/Progress.h"
#include "corvex/common/files/SafeFile.h"
#include "corvex/common/zip/private/DeflatedBytes.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <zip.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

// 1 January 1980, midnight: the earliest time that an archive can store; it has no time zone.
constexpr zip_uint16_t entryDate = (1 << 5) | 1;
constexpr zip_uint32_t regularFileMode = 0100644;
constexpr int defaultLevel = 6;
constexpr int highestLevel = 9;

bool fail(QString *error, const QString &path, const QString &problem)
{
    if (error) {
        *error = u"%1: %2"_s.arg(QDir::toNativeSeparators(path), problem);
    }
    return false;
}

QString textOf(zip_error_t *error)
{
    return QString::fromUtf8(zip_error_strerror(error));
}

QString textOf(zip_t *archive)
{
    return textOf(zip_get_error(archive));
}

//! Discards the archive unless it was closed.
struct ArchiveDeleter
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, ArchiveDeleter>;

struct EntryFileDeleter
{
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};
using EntryFile = std::unique_ptr<zip_file_t, EntryFileDeleter>;

//! A file that is deflated when it is added to the archive. libzip stores these bytes as they are; its own
//! compression would use only one processor.
class DeflatedSource
{
public:
    explicit DeflatedSource(const DeflatedBytes &bytes)
        : m_bytes(bytes)
    { }

    //! This object must outlive the source.
    zip_source_t *create(zip_t *archive) { return zip_source_function(archive, &serve, this); }

private:
    static zip_int64_t serve(void *self, void *data, zip_uint64_t size, zip_source_cmd_t command)
    {
        auto &source = *static_cast<DeflatedSource *>(self);
        switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return ZIP_SOURCE_SUPPORTS_READABLE;
        case ZIP_SOURCE_OPEN:
            source.m_rest = source.m_bytes.deflated();
            return 0;
        case ZIP_SOURCE_READ:
            return source.read(static_cast<char *>(data), size);
        case ZIP_SOURCE_STAT:
            return source.describe(*static_cast<zip_stat_t *>(data));
        default:
            return 0; // nothing to close, free or report
        }
    }

    zip_int64_t read(char *data, zip_uint64_t size)
    {
        const qsizetype count = std::min(m_rest.size(), static_cast<qsizetype>(size));
        std::copy_n(m_rest.data(), count, data);
        m_rest = m_rest.sliced(count);
        return count;
    }

    zip_int64_t describe(zip_stat_t &entry) const
    {
        zip_stat_init(&entry);
        entry.valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_CRC;
        entry.size = m_bytes.size();
        entry.comp_size = static_cast<zip_uint64_t>(m_bytes.deflated().size());
        entry.comp_method = ZIP_CM_DEFLATE;
        entry.crc = m_bytes.crc();
        return sizeof(entry);
    }

    const DeflatedBytes &m_bytes;
    QByteArrayView m_rest;
};

struct Entry
{
    QString path;
    QString name;
    DeflatedSource *source = nullptr; //!< used instead of a file
};

bool addEntry(zip_t *archive, const Entry &entry, int level)
{
    zip_source_t *source = entry.source
                               ? entry.source->create(archive)
                               : zip_source_file(archive, QFile::encodeName(entry.path).constData(), 0, -1);
    if (!source) {
        return false;
    }
    const zip_int64_t index =
        zip_file_add(archive, entry.name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    const auto at = static_cast<zip_uint64_t>(index);
    const bool stored = level <= 0;
    return zip_set_file_compression(archive, at, stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE,
                                    stored ? 0 : static_cast<zip_uint32_t>(level))
               == 0
           && zip_file_set_dostime(archive, at, 0, entryDate, 0) == 0
           && zip_file_set_external_attributes(archive, at, 0, ZIP_OPSYS_UNIX, regularFileMode << 16) == 0;
}

struct SourceDeleter
{
    void operator()(zip_source_t *source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, SourceDeleter>;

bool isCancelled(const Progress *progress)
{
    return progress && progress->isCancelled();
}

bool failCancelled(QString *error, const QString &path)
{
    return fail(error, path, LocalizationHelper::coreString(u"Packing was cancelled."_s));
}

int cancelsClosing(zip_t *, void *progress)
{
    return isCancelled(static_cast<const Progress *>(progress)) ? 1 : 0;
}

bool writeSource(zip_source_t *source, const QString &path, QString *error, const Progress *progress)
{
    SafeFile file(path);
    if (!file.openForWriting(error)) {
        return false;
    }
    if (zip_source_open(source) != 0) {
        return fail(error, path, textOf(zip_source_error(source)));
    }
    QByteArray block(1 << 18, Qt::Uninitialized);
    zip_int64_t read = 0;
    while (!isCancelled(progress)
           && (read = zip_source_read(source, block.data(), static_cast<zip_uint64_t>(block.size()))) > 0) {
        file.write(block.constData(), read);
    }
    if (isCancelled(progress)) {
        return failCancelled(error, path);
    }
    if (read < 0) {
        return fail(error, path, textOf(zip_source_error(source)));
    }
    zip_source_close(source);
    return file.commit(error);
}

bool setComment(zip_t *archive, const QString &comment)
{
    const QByteArray bytes = comment.toUtf8();
    const auto size = static_cast<zip_uint16_t>(bytes.size());
    return bytes.isEmpty()
           || (bytes.size() == size && zip_set_archive_comment(archive, bytes.constData(), size) == 0);
}

bool pack(const QList<Entry> &entries, const QString &zipPath, const QString &comment, int level,
          QString *error, Progress *progress)
{
    if (entries.isEmpty()) {
        return fail(error, zipPath, LocalizationHelper::coreString(u"There is nothing to pack."_s));
    }
    zip_error_t problem;
    zip_error_init(&problem);
    Source buffer(zip_source_buffer_create(nullptr, 0, 0, &problem));
    Archive archive(buffer ? zip_open_from_source(buffer.get(), ZIP_CREATE | ZIP_TRUNCATE, &problem)
                           : nullptr);
    if (!archive) {
        return fail(error, zipPath, textOf(&problem));
    }
    // Closing the archive releases the buffer, which is read after that.
    zip_source_keep(buffer.get());
    if (!setComment(archive.get(), comment)) {
        return fail(error, zipPath, LocalizationHelper::coreString(u"The comment is too long."_s));
    }
    for (const Entry &entry : entries) {
        if (!addEntry(archive.get(), entry, level)) {
            return fail(error, entry.path, textOf(archive.get()));
        }
    }
    // libzip reads and deflates the files when it closes the archive.
    zip_register_cancel_callback_with_state(archive.get(), &cancelsClosing, nullptr, progress);
    if (isCancelled(progress)) {
        return failCancelled(error, zipPath);
    }
    if (zip_close(archive.get()) != 0) {
        return fail(error, zipPath, textOf(archive.get()));
    }
    archive.release(); // NOLINT(bugprone-unused-return-value): zip_close freed it
    return writeSource(buffer.get(), zipPath, error, progress);
}

constexpr zip_int64_t mostEntries = 100'000;
constexpr quint64 mostUnpackedBytes = quint64(4) << 30;
//! The highest ratio that a valid deflate stream can reach.
constexpr quint64 mostGrowth = 1100;

Archive openForReading(const QString &path, QString *error)
{
    int code = 0;
    Archive archive(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY | ZIP_CHECKCONS, &code));
    if (!archive) {
        zip_error_t problem;
        zip_error_init_with_code(&problem, code);
        fail(error, path, textOf(&problem));
        zip_error_fini(&problem);
    }
    return archive;
}

QString entryName(zip_t *archive, zip_uint64_t index)
{
    return QString::fromUtf8(zip_get_name(archive, index, ZIP_FL_ENC_GUESS));
}

bool isSafeName(const QString &name)
{
    if (name.isEmpty() || name.startsWith(u'/') || name.contains(u'\\') || name.contains(u':')) {
        return false;
    }
    const QStringList parts = (name.endsWith(u'/') ? name.chopped(1) : name).split(u'/');
    return std::none_of(parts.begin(), parts.end(), [](const QString &part) {
        return part.isEmpty() || part == "."_L1 || part == ".."_L1;
    });
}

bool isPlainFileOrFolder(zip_t *archive, zip_uint64_t index)
{
    constexpr zip_uint32_t kindMask = 0170000;
    constexpr zip_uint32_t folder = 0040000;
    constexpr zip_uint32_t file = 0100000;
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    if (zip_file_get_external_attributes(archive, index, 0, &system, &attributes) != 0) {
        return false;
    }
    const zip_uint32_t kind = (attributes >> 16) & kindMask;
    return system != ZIP_OPSYS_UNIX || kind == 0 || kind == folder || kind == file;
}

//! Checks every entry before the first one is written.
bool isHarmless(zip_t *archive, const QString &zipPath, QString *error)
{
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    const QString tooLarge = LocalizationHelper::coreString(u"The unpacked archive would be too large."_s);
    if (count > mostEntries) {
        return fail(error, zipPath, tooLarge);
    }
    QSet<QString> names;
    quint64 total = 0;
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        const QString name = entryName(archive, index);
        zip_stat_t entry;
        if (zip_stat_index(archive, index, 0, &entry) != 0) {
            return fail(error, zipPath, textOf(archive));
        }
        total += entry.size;
        const bool grows = entry.size / mostGrowth > entry.comp_size;
        if (grows || entry.size > mostUnpackedBytes || total > mostUnpackedBytes) {
            return fail(error, zipPath, tooLarge);
        }
        if (!isSafeName(name) || !isPlainFileOrFolder(archive, index) || names.contains(name)) {
            return fail(
                error, zipPath,
                LocalizationHelper::coreString(u"The archive contains the unsafe entry \"%1\"."_s).arg(name));
        }
        names.insert(name);
    }
    return true;
}

//! Creates the folder below the root. Refuses to follow links.
bool makeFolder(const QString &root, const QString &relative)
{
    QString path = root;
    for (const QString &part : relative.split(u'/', Qt::SkipEmptyParts)) {
        path += u'/' + part;
        const QFileInfo info(path);
        if (info.isSymLink() || (!info.isDir() && !QDir().mkdir(path))) {
            return false;
        }
    }
    return true;
}

bool extract(zip_t *archive, zip_uint64_t index, const QString &path, QString *error)
{
    zip_stat_t entry;
    if (zip_stat_index(archive, index, 0, &entry) != 0) {
        return fail(error, path, textOf(archive));
    }
    const EntryFile source(zip_fopen_index(archive, index, 0));
    if (!source) {
        return fail(error, path, textOf(archive));
    }
    SafeFile file(path);
    if (!file.openForWriting(error)) {
        return false;
    }
    QByteArray block(1 << 18, Qt::Uninitialized);
    quint64 total = 0;
    zip_int64_t read = 0;
    while ((read = zip_fread(source.get(), block.data(), static_cast<zip_uint64_t>(block.size()))) > 0) {
        total += static_cast<quint64>(read);
        if (total > entry.size) {
            break;
        }
        file.write(block.constData(), read);
    }
    if (read < 0) {
        return fail(error, path, textOf(zip_file_get_error(source.get())));
    }
    if (total != entry.size) {
        return fail(error, path, LocalizationHelper::coreString(u"The size of the entry is wrong."_s));
    }
    return file.commit(error);
}

bool extractAll(zip_t *archive, const QString &root, QString *error)
{
    const auto count = static_cast<zip_uint64_t>(zip_get_num_entries(archive, 0));
    for (zip_uint64_t i = 0; i < count; ++i) {
        const QString name = entryName(archive, i);
        const QString path = root + u'/' + name;
        const QString folder = name.first(name.lastIndexOf(u'/') + 1);
        if (!makeFolder(root, folder) || QFileInfo(path).isSymLink()) {
            return fail(error, path, LocalizationHelper::coreString(u"The folder cannot be created."_s));
        }
        if (!name.endsWith(u'/') && !extract(archive, i, path, error)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool ZipHelper::zipWithFiles(const QStringList &files, const QString &zipPath, const QString &comment,
                             int level, QString *error, Progress *progress)
{
    QList<Entry> entries;
    for (const QString &file : files) {
        const QFileInfo info(file);
        if (!info.isFile()) {
            return fail(error, file, LocalizationHelper::coreString(u"The file does not exist."_s));
        }
        entries.append({file, info.fileName()});
    }
    return pack(entries, zipPath, comment, qBound(0, level, highestLevel), error, progress);
}

bool ZipHelper::zipWithBytes(const QByteArray &bytes, const QString &name, const QString &zipPath,
                             const QString &comment, int level, QString *error, Progress *progress)
{
    const DeflatedBytes deflated(bytes, qBound(1, level, highestLevel), progress);
    if (isCancelled(progress)) {
        return failCancelled(error, zipPath);
    }
    if (deflated.deflated().isEmpty()) {
        return fail(error, zipPath, LocalizationHelper::coreString(u"There is not enough memory."_s));
    }
    DeflatedSource source(deflated);
    return pack({{zipPath, name, &source}}, zipPath, comment, highestLevel, error, progress);
}

bool ZipHelper::zipDirectory(const QString &directory, const QString &zipPath, QString *error,
                             Progress *progress)
{
    if (!QFileInfo(directory).isDir()) {
        return fail(error, directory, LocalizationHelper::coreString(u"The folder does not exist."_s));
    }
    const QDir root(QFileInfo(directory).absoluteFilePath());
    const QString target = QFileInfo(zipPath).absoluteFilePath();
    QList<Entry> entries;
    QDirIterator files(root.path(), QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path != target) {
            entries.append({path, root.relativeFilePath(path)});
        }
    }
    std::sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) { return a.name < b.name; });
    return pack(entries, zipPath, {}, defaultLevel, error, progress);
}

bool ZipHelper::unzip(const QString &zipPath, const QString &directory, QString *error)
{
    const Archive archive = openForReading(zipPath, error);
    if (!archive || !isHarmless(archive.get(), zipPath, error)) {
        return false;
    }
    if (!QDir().mkpath(directory)) {
        return fail(error, directory, LocalizationHelper::coreString(u"The folder cannot be created."_s));
    }
    return extractAll(archive.get(), QDir(directory).absolutePath(), error);
}

QStringList ZipHelper::entryNames(const QString &zipPath, QString *error)
{
    const Archive archive = openForReading(zipPath, error);
    if (!archive) {
        return {};
    }
    QStringList names;
    const auto count = static_cast<zip_uint64_t>(zip_get_num_entries(archive.get(), 0));
    for (zip_uint64_t i = 0; i < count; ++i) {
        names.append(entryName(archive.get(), i));
    }
    return names;
}

} // namespace Halvane::Corvex::Common
