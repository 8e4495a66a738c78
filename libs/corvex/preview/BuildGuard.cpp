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

//! Those that screens import, and what these need in one version of Qt or another.
constexpr auto modules =
    std::to_array<const char *>({"QML", "QtQml", "QtQml/Models", "QtQuick", "RuntimeObjects"});
const QString listOfModule = u"/qmldir"_s;
constexpr int newestMinorVersion = 254; // that Qt knows

//! Of addresses that intercept() leaves as they are, though no other program is to get them.
const QStringList ourSchemes{u"data"_s, u"file"_s, u"qrc"_s};
//! The one that has the desktop's handlers; a new session has them before the old one ends.
BuildGuard *s_current = nullptr;

bool isOurs(const QUrl &url)
{
    return url.scheme() == "qrc"_L1 || url.scheme() == "data"_L1;
}

const QString refusedFolder = u"/refused/"_s;

//! An address of the program at which there is nothing, and which tells what was asked for.
QUrl nothingFor(const QUrl &url)
{
    QUrl nothing(u"qrc:"_s);
    nothing.setPath(refusedFolder + url.toString());
    return nothing;
}

//! What is in a picture or a text that came with its address passes, and nothing else does.
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
        // A file of the build is not read this way: a script would see what is in it.
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
    // What stands as "qml_Main.qmlc" beside a document would be taken for its compiled form.
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
    m_folders.removeAll(QString()); // of a folder that is not there
}

bool BuildGuard::isAllowed(const QString &path) const
{
    // A link counts as what it leads to; a file that is missing may be asked for.
    const QFileInfo file(path);
    const QString folder =
        file.exists() ? QFileInfo(file.canonicalFilePath()).path() : QFileInfo(QDir::cleanPath(path)).path();
    return std::ranges::any_of(m_folders, [&folder](const QString &allowed) {
        return folder == allowed || folder.startsWith(allowed + u'/');
    });
}

/*! The module "QtQuick/Window" for a list in one of the folders of modules, whose names may have a version:
   "QtQuick.2/Window". Empty for a list elsewhere. */
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

/*! Types that come with the libraries of Qt need no list. An engine asks for the list of a module before it
   looks for these types. A locked module can be imported, in any version, and has none. */
void BuildGuard::lockModule(const QString &module)
{
    static QMutex mutex;
    static QSet<QString> locked; // for good, in all engines
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

//! The list of what a folder offers as a module. One that is not let through is missing, in a folder of ours.
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
        emit refused(u"\"%1\" is not read: the preview has the modules of the device alone."_s.arg(path));
    }
    return QUrl(u"qrc:/corvex/preview/qmldir"_s);
}

bool BuildGuard::eventFilter(QObject *watched, QEvent *event)
{
    auto *window = event->type() == QEvent::Show ? qobject_cast<QWindow *>(watched) : nullptr;
    if (window && qmlEngine(window) == m_engine) {
        emit refused(u"A window of its own is not opened: a panel has one screen at a time."_s);
        QMetaObject::invokeMethod(window, &QWindow::destroy, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

//! What is wrong with a file that may be read by its place. A picture may lead further.
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
    QString problem = u"\"%1\" is not opened: the preview reads the files of the build alone."_s.arg(
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
        return; // and was told already
    }
    emit refused(u"\"%1\" is not shown: the preview starts no other program."_s.arg(url.toString()));
}

QNetworkAccessManager *BuildGuard::create(QObject *parent)
{
    return new ClosedNetwork(*this, parent);
}

} // namespace Halvane::Corvex::Preview
