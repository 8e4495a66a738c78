// SPDX-License-Identifier: MIT
#include "corvex/runtime/RuntimeGenerator.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/Processors.h"
#include "corvex/common/Progress.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/files/FolderLock.h"
#include "corvex/common/files/TemporaryFolder.h"
#include "corvex/common/zip/ZipHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/runtime/RuntimeConfiguration.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUuid>

#include <atomic>
#include <future>
#include <memory>
#include <mutex>
#include <vector>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

//! The packer limits this to its highest level.
constexpr int compressionLevel = 10;
const QString packedName = u"Project.kdproj"_s;

//! Locks the build folders of the last builds, so that other processes see that they are in use, whether or
//! not their generators still exist. Limited to the last builds, because each lock keeps a file open.
class BuildFolderLocks
{
public:
    static BuildFolderLocks &instance()
    {
        static BuildFolderLocks locks;
        return locks;
    }
    void add(const QString &folder, std::unique_ptr<Common::FolderLock> lock)
    {
        constexpr size_t most = 64;
        const std::lock_guard guard(m_mutex);
        if (m_locks.size() == most) {
            m_locks.erase(m_locks.begin());
        }
        m_locks.emplace_back(folder, std::move(lock));
    }
    void remove(const QString &folder)
    {
        const std::lock_guard guard(m_mutex);
        std::erase_if(m_locks, [&folder](const auto &entry) { return entry.first == folder; });
    }

private:
    std::mutex m_mutex;
    std::vector<std::pair<QString, std::unique_ptr<Common::FolderLock>>> m_locks;
};

QByteArray withWindowsLineEnds(QByteArrayView text)
{
    QByteArray result;
    result.reserve(text.size() + text.size() / 16);
    for (qsizetype from = 0, to = 0; from < text.size(); from = to + 1) {
        to = text.indexOf('\n', from);
        if (to < 0) {
            return result.append(text.sliced(from));
        }
        result.append(text.sliced(from, to - from)).append("\r\n");
    }
    return result;
}

//! The message for a second screen with the same file name.
QString takenName(const QString &screen)
{
    return LocalizationHelper::coreString(u"Two screens would be written to \"%1\"."_s)
        .arg(screen + u".qml"_s);
}

//! For the object and everything below it, by the QML name of the class.
void collectPreviews(const DesignerObject &object, QVariantMap &previews)
{
    if (const QString preview = DesignerFactory::previewOf(&object); !preview.isEmpty()) {
        previews.insert(object.qmlName(), preview);
    }
    for (const DesignerObject *child : object.childObjects()) {
        collectPreviews(*child, previews);
    }
}

} // namespace

bool RuntimeGenerator::generate(const DesignerObject *project)
{
    m_error.clear();
    m_buildFolder.clear();
    bool done = makeBuildFolder() && writeProject(project) && copyResources();
    if (isCancelled()) {
        done = fail(LocalizationHelper::coreString(u"The build was cancelled."_s));
    }
    if (!done) {
        removeBuildFolder();
    }
    return done;
}

void RuntimeGenerator::removeBuildFolder()
{
    if (!m_buildFolder.isEmpty()) {
        removeBuild(m_buildFolder);
        m_buildFolder.clear();
    }
}

void RuntimeGenerator::removeBuild(const QString &buildFolder)
{
    Common::FileHelper::removeDirectory(buildFolder);
    BuildFolderLocks::instance().remove(buildFolder);
}

bool RuntimeGenerator::isCancelled() const
{
    return m_progress && m_progress->isCancelled();
}

void RuntimeGenerator::advance() const
{
    if (m_progress) {
        m_progress->advance();
    }
}

bool RuntimeGenerator::fail(const QString &error)
{
    m_error = error;
    return false;
}

QString RuntimeGenerator::filePath(const QString &fileName) const
{
    return u"%1/project/%2"_s.arg(m_buildFolder, fileName);
}

bool RuntimeGenerator::makeBuildFolder()
{
    const QDir temporary(Common::FileHelper::getStandardTemporatyLocation());
    const QString designerFolder = temporary.absoluteFilePath(u"%1/CorvexNova/Designer"_s.arg(u"Halvane"_s));
    Common::TemporaryFolder::removeAbandoned(designerFolder, u"{*-*-*-*-*}"_s);
    QString folder;
    QString error;
    auto lock = std::make_unique<Common::FolderLock>();
    do {
        do {
            folder = u"%1/%2"_s.arg(designerFolder, QUuid::createUuid().toString());
        } while (QFile::exists(folder));
        if (!Common::FileHelper::makeFolder(folder, &error)) {
            return fail(error);
        }
        // Another process may have removed it as abandoned before it was locked.
    } while (!lock->take(folder, Common::FolderLock::Kind::Exclusive));
    if (!Common::FileHelper::makeFolder(folder + u"/project"_s, &error)) {
        Common::FileHelper::removeDirectory(folder);
        return fail(error);
    }
    BuildFolderLocks::instance().add(folder, std::move(lock));
    m_buildFolder = folder;
    return true;
}

bool RuntimeGenerator::writeProject(const DesignerObject *project)
{
    if (m_progress) {
        constexpr qsizetype packerSteps = 2;
        const SharedProperty screens = project->getProperty(u"screens");
        m_progress->begin(LocalizationHelper::coreString(u"Building %1"_s).arg(project->getIdName()),
                          packerSteps + (screens ? screens->listItemCount() : 0));
    }
    // Packing takes as long as writing all screens. The packer reads the model, which nothing changes
    // meanwhile. If no second thread can be started, it runs when its result is requested.
    std::future<QString> packing = std::async(std::launch::async | std::launch::deferred,
                                              [this, project] { return packProject(*project); });
    const bool written = writeConfiguration(project) && writePreviews(project) && writeScreens(project);
    const QString error = packing.get();
    return error.isEmpty() ? written : fail(error);
}

QString RuntimeGenerator::packProject(const DesignerObject &project) const
{
    QString error;
    const QByteArray xml = projectXml(project, &error);
    advance();
    if (error.isEmpty() && !isCancelled()) {
        Common::ZipHelper::zipWithBytes(xml, packedName, filePath(packedName + u".zip"_s), {},
                                        compressionLevel, &error, m_progress);
    }
    advance();
    return error;
}

QByteArray RuntimeGenerator::projectXml(const DesignerObject &project, QString *error) const
{
    IdentifierInfo id = project.getIdInfo();
    id.setName(u"Project"_s);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ObjectXmlWriter writer(&buffer, ObjectXmlWriter::LineEnd::Windows);
    writer.setRootValue(project.idProperty()->id(), id.toString());
    if (!m_buildTag.isEmpty()) {
        writer.setRootValue(u"version"_s, m_buildTag);
    }
    if (!writer.write(&project)) {
        *error = writer.errorString();
    }
    return buffer.data();
}

bool RuntimeGenerator::writeConfiguration(const DesignerObject *project)
{
    RuntimeConfiguration configuration;
    QString error;
    return (configuration.collect(*project, &error)
            && configuration.write(m_buildFolder + u"/project"_s, &error))
           || fail(error);
}

bool RuntimeGenerator::writePreviews(const DesignerObject *project)
{
    QVariantMap previews;
    if (DesignerFactory::hasPreviews()) {
        collectPreviews(*project, previews);
    }
    QString error;
    return previews.isEmpty()
           || Common::FileHelper::variantToFile(previews, filePath(u"preview.kdrc"_s), false, &error)
           || fail(error);
}

bool RuntimeGenerator::writeScreens(const DesignerObject *project)
{
    const QList<DesignerObject *> screens =
        project->getListItemsInListPropertyOfType(u"screens"_s, u"Screen"_s);
    QSet<QString> names;
    for (const DesignerObject *screen : screens) {
        const QString name = screen->getQmlIdName();
        // The id is a name of letters, digits and "_", so the path cannot leave the folder.
        if (name.isEmpty()) {
            return fail(LocalizationHelper::coreString(u"The screen's name \"%1\" cannot be a file name."_s)
                            .arg(screen->getIdName()));
        }
        if (names.contains(name)) {
            return fail(takenName(name));
        }
        names.insert(name);
    }
    std::vector<QString> errors(size_t(screens.size()));
    std::atomic<size_t> next = 0;
    Common::Processors::run(errors.size(), [&] {
        for (size_t i = next++; i < errors.size() && !isCancelled(); i = next++) {
            errors[i] = writeScreen(*screens.at(qsizetype(i)));
            advance();
        }
    });
    const auto error = std::ranges::find_if(errors, [](const QString &text) { return !text.isEmpty(); });
    return error == errors.end() || fail(*error);
}

QString RuntimeGenerator::writeScreen(const DesignerObject &screen) const
{
    const QByteArray bytes = withWindowsLineEnds(screen.toQml(0).toUtf8());
    QFile file(filePath(screen.getQmlIdName() + u".qml"_s));
    // A file system may ignore case in names.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.exists()) {
        return takenName(screen.getQmlIdName());
    }
    const bool isWritten = file.isOpen() && file.write(bytes) == bytes.size() && file.flush();
    return isWritten ? QString()
                     : LocalizationHelper::coreString(u"\"%1\" cannot be written: %2"_s)
                           .arg(file.fileName(), Common::FileHelper::writeError(file));
}

bool RuntimeGenerator::copyResources()
{
    if (m_resourceFolder.isEmpty()) {
        return true;
    }
    const QDir resources(m_resourceFolder);
    const QString projectFolder =
        QFileInfo(QFileInfo(resources.absolutePath()).path()).canonicalFilePath() + u'/';
    QStringList names = resources.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    if (m_resourceNames) {
        const QSet<QString> wanted(m_resourceNames->cbegin(), m_resourceNames->cend());
        names.removeIf([&wanted](const QString &name) { return !wanted.contains(name); });
    }
    for (const QString &name : std::as_const(names)) {
        const QString path = resources.absoluteFilePath(name);
        if (isCancelled()) {
            return false; // generate() reports it
        }
        // A build is passed on to others, and a project from elsewhere may contain links to any file of this
        // machine.
        if (!QFileInfo(path).canonicalFilePath().startsWith(projectFolder)) {
            return fail(
                LocalizationHelper::coreString(
                    u"\"%1\" is a link to a file outside of the project. Replace it by the file itself."_s)
                    .arg(path));
        }
        QString error;
        if (!Common::FileHelper::copyFile(path, filePath(name), &error)) {
            return fail(error);
        }
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
