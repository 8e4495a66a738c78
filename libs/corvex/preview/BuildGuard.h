// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QQmlAbstractUrlInterceptor>
#include <QQmlNetworkAccessManagerFactory>
#include <QStringList>
#include <QUrl>

class QQmlEngine;

namespace Halvane::Corvex::Preview {

/*! Restricts the documents of a build, which may come from anybody, to the files of the build. Engines pass
    each address to this class, from any thread. The network and scripts in other files are blocked. Only the
    modules that generated screens import are available. Any other module is locked on its first request,
    because its types may load native code, or scripts that bypass the engine.
*/
class BuildGuard
    : public QObject
    , public QQmlAbstractUrlInterceptor
    , public QQmlNetworkAccessManagerFactory
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~BuildGuard() override;

    //! Guards the engine for its lifetime. Call it before the engine loads anything.
    void guard(QQmlEngine &engine);
    //! Sets the readable folders. Call it before a document is loaded.
    void allow(const QStringList &folders);
    //! Loads another document instead of \a url, which belongs to the program. Call it before a document is
    //! loaded.
    void replace(const QUrl &url, const QUrl &document) { m_replaced.insert(url, document); }
    //! Closes windows that a document of the engine opens.
    bool eventFilter(QObject *watched, QEvent *event) override;

    QUrl intercept(const QUrl &url, DataType type) override;
    QNetworkAccessManager *create(QObject *parent) override;

signals:
    //! A blocked request, as a text for the user.
    void refused(const QString &message);

private:
    //! Called instead of starting a desktop program.
    Q_INVOKABLE void refuseToShow(const QUrl &url);
    QString moduleOf(const QString &path) const;
    static void lockModule(const QString &module);
    QUrl moduleFile(const QUrl &url);
    bool isAllowed(const QString &path) const;
    QString fileProblem(const QUrl &url, DataType type) const;

    QStringList m_importPaths; //!< the module folders, each with a "/" at its end
    QStringList m_folders;
    QHash<QUrl, QUrl> m_replaced;
    QQmlEngine *m_engine = nullptr;
};

} // namespace Halvane::Corvex::Preview
