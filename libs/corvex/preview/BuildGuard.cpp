// SPDX-License-Identifier: MIT
#include "corvex/preview/BuildGuard.h"

#include "corvex/common/PictureFile.h"
#include "corvex/common/files/RegularFile.h"
#include "corvex/preview/Bounds.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QNetworkAccessManager>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QSet>
#include <QWindow>
#include <qqml.h>

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

//! The modules that screens import, and their dependencies in any supported version of Qt.
constexpr auto modules =
    std::to_array<const char *>({"QML", "QtQml", "QtQml/Models", "QtQuick", "RuntimeObjects"});
const QString listOfModule = u"/qmldir"_s;
constexpr int newestMinorVersion = 254; // the highest that Qt accepts

//! Schemes of addresses that intercept() passes; they must not be opened by other programs either.
const QStringList ourSchemes{u"data"_s, u"file"_s, u"qrc"_s};
//! The guard that receives requests to open URLs. A new session takes over before the old one ends.
BuildGuard *s_current = nullptr;

bool isOurs(const QUrl &url)
{
    return url.scheme() == "qrc"_L1 || url.scheme() == "data"_L1;
}

const QString refusedFolder = u"/refused/"_s;

//! An address without contents. It contains the requested one, for the message.
QUrl nothingFor(const QUrl &url)
{
    QUrl nothing(u"qrc:"_s);
    nothing.setPath(refusedFolder + url.toString());
    return nothing;
}

//! Blocks all requests except those for data in the address itself.
class ClosedNetwork : public QNetworkAccessManager
{
public:
    ClosedNetwork(BuildGuard &guard, QObject *parent)
        : QNetworkAccessManager(parent)
        , m_guard(guard)
    { }

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *data) override
    {
        const QUrl url = m_guard.intercept(request.url(), QQmlAbstractUrlInterceptor::UrlString);
        // Files of the build cannot be requested either, because a script could read the answer.
        const QUrl ours = isOurs(url) ? url : nothingFor(url);
        return QNetworkAccessManager::createRequest(operation, QNetworkRequest(ours), data);
    }

private:
    BuildGuard &m_guard;
};

} // namespace

BuildGuard::~BuildGuard()
{
    if (s_current == this) {
        s_current = nullptr;
        for (const QString &scheme : ourSchemes) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }
}

void BuildGuard::guard(QQmlEngine &engine)
{
    // Otherwise a file "qml_Main.qmlc" beside a document would be used as its compiled form.
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    for (QString path : engine.importPathList()) {
        m_importPaths.append(path.remove(u"qrc:"_s) + u'/');
    }
    s_current = this;
    for (const QString &scheme : ourSchemes) {
        QDesktopServices::setUrlHandler(scheme, this, "refuseToShow");
    }
    m_engine = &engine;
    QCoreApplication::instance()->installEventFilter(this);
    engine.addUrlInterceptor(this);
    engine.setNetworkAccessManagerFactory(this);
}

void BuildGuard::allow(const QStringList &folders)
{
    m_folders.clear();
    for (const QString &folder : folders) {
        m_folders += {QDir::cleanPath(folder), QFileInfo(folder).canonicalFilePath()};
    }
    m_folders.removeAll(QString()); // missing folders
}

bool BuildGuard::isAllowed(const QString &path) const
{
    // Resolve links. A missing file may be requested.
    const QFileInfo file(path);
    const QString folder =
        file.exists() ? QFileInfo(file.canonicalFilePath()).path() : QFileInfo(QDir::cleanPath(path)).path();
    return std::ranges::any_of(m_folders, [&folder](const QString &allowed) {
        return folder == allowed || folder.startsWith(allowed + u'/');
    });
}

//! The module "QtQuick/Window" for a qmldir file in one of the module folders, whose names may contain a
//! version: "QtQuick.2/Window". Empty for a file elsewhere.
QString BuildGuard::moduleOf(const QString &path) const
{
    static const QRegularExpression version(u"\\.[0-9.]+(?=/|$)"_s);
    for (const QString &folder : m_importPaths) {
        if (path.startsWith(folder)) {
            return path.sliced(folder.size()).chopped(listOfModule.size()).remove(version);
        }
    }
    return {};
}

//! Types built into the Qt libraries need no qmldir file. The engine requests the file of a module before it
//! looks for these types. A locked module can be imported in any version but has no types.
void BuildGuard::lockModule(const QString &module)
{
    static QMutex mutex;
    static QSet<QString> locked; // permanently, in all engines
    const QMutexLocker lock(&mutex);
    if (locked.contains(module)) {
        return;
    }
    locked.insert(module);
    const QByteArray name = QString(module).replace(u'/', u'.').toUtf8();
    for (int version = 0; version <= QT_VERSION_MAJOR; ++version) {
        qmlRegisterModule(name.constData(), version, 0);
        qmlRegisterModule(name.constData(), version, newestMinorVersion);
        qmlProtectModule(name.constData(), version);
    }
}

//! The qmldir file of a folder. For a blocked module, the address of a missing file in our own folder.
QUrl BuildGuard::moduleFile(const QUrl &url)
{
    const QString path = url.isLocalFile() ? url.toLocalFile() : url.path();
    const QString module = moduleOf(path);
    if (std::ranges::any_of(modules,
                            [&module](const char *name) { return module == QLatin1StringView(name); })) {
        return url;
    }
    if (!module.isEmpty()) {
        lockModule(module);
    } else if (QFileInfo::exists(path)) {
        emit refused(u"\"%1\" was not read: the preview only has the modules of the device."_s.arg(path));
    }
    return QUrl(u"qrc:/corvex/preview/qmldir"_s);
}

bool BuildGuard::eventFilter(QObject *watched, QEvent *event)
{
    auto *window = event->type() == QEvent::Show ? qobject_cast<QWindow *>(watched) : nullptr;
    if (window && qmlEngine(window) == m_engine) {
        emit refused(u"A separate window was not opened: a panel shows one screen at a time."_s);
        QMetaObject::invokeMethod(window, &QWindow::destroy, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

//! Why a file in an allowed folder must not be read; images may refer to other files.
QString BuildGuard::fileProblem(const QUrl &url, DataType type) const
{
    const QString path = url.toLocalFile();
    if (!QFileInfo::exists(path)) {
        return {};
    }
    return type == UrlString ? Common::PictureFile::problem(path)
                             : Common::RegularFile::problem(path, Bounds::longestFile);
}

QUrl BuildGuard::intercept(const QUrl &url, DataType type)
{
    if (type == QmldirFile) {
        return moduleFile(url);
    }
    if (url.isEmpty() || isOurs(url)) {
        return m_replaced.value(url, url);
    }
    const bool isFile = url.isLocalFile() && type != JavaScriptFile;
    QString problem = u"\"%1\" was not opened: the preview only reads the files of the build."_s.arg(
        url.toString(QUrl::RemoveUserInfo));
    if (isFile && isAllowed(url.toLocalFile())) {
        problem = fileProblem(url, type);
    }
    if (problem.isEmpty()) {
        return url;
    }
    emit refused(problem);
    return nothingFor(url);
}

void BuildGuard::refuseToShow(const QUrl &url)
{
    if (url.path().startsWith(refusedFolder)) {
        return; // reported already
    }
    emit refused(u"\"%1\" was not shown: the preview starts no other programs."_s.arg(url.toString()));
}

QNetworkAccessManager *BuildGuard::create(QObject *parent)
{
    return new ClosedNetwork(*this, parent);
}

} // namespace Halvane::Corvex::Preview
