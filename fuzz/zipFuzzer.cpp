// SPDX-License-Identifier: MIT
#include "corvex/common/zip/ZipHelper.h"

#include "FuzzSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

using namespace Halvane::Corvex::Common;
using namespace Qt::StringLiterals;

namespace {

constexpr QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

//! The unpacked contents must be files and folders that correspond to the entries.
void checkUnpacked(const QString &folder, const QStringList &names)
{
    QDirIterator entries(folder, everything, QDirIterator::Subdirectories);
    qsizetype files = 0;
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        Fuzz::require(!entry.isSymLink(), "a link was unpacked", entry.filePath());
        files += entry.isFile() ? 1 : 0;
    }
    const auto isFile = [](const QString &name) { return !name.endsWith(u'/'); };
    Fuzz::require(files == std::count_if(names.begin(), names.end(), isFile), "not everything was unpacked");
}

} // namespace

//! Nothing may leave the folder into which an archive is unpacked.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QTemporaryDir home;
    const QString archive = home.filePath(u"in.zip"_s);
    const QString folder = home.filePath(u"a/b"_s);
    QFile file(archive);
    Fuzz::require(file.open(QIODevice::WriteOnly)
                      && file.write(reinterpret_cast<const char *>(data), qint64(size)) == qint64(size),
                  "the temporary folder");
    file.close();

    QString error;
    const QStringList names = ZipHelper::entryNames(archive, &error);
    Fuzz::require(names.isEmpty() || error.isEmpty(), "names and an error", error);
    const bool done = ZipHelper::unzip(archive, folder, &error);
    Fuzz::require(done || !error.isEmpty(), "refused without a reason");
    if (done) {
        checkUnpacked(folder, names);
    }
    const QStringList left = QDir(home.path()).entryList(everything, QDir::Name);
    Fuzz::require(left == QStringList{u"in.zip"_s} || left == QStringList({u"a"_s, u"in.zip"_s}),
                  "something lies outside", left.join(u' '));
    Fuzz::require(QDir(home.filePath(u"a"_s)).entryList(everything).size() <= 1, "something lies outside");
    return 0;
}
