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

/*! Keeps the documents of a build to the files of the build, whoever has made it: an engine asks here for
   each address that it meets, in whatever thread. Nothing comes from the network, and no script from another
   file. Of modules there are those that generated screens import. Every other is locked as soon as somebody
   asks for it, since its types may bring machine code along, or scripts that ask no engine. */
class BuildGuard
    : public QObject
    , public QQmlAbstractUrlInterceptor
    , public QQmlNetworkAccessManagerFactory
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~BuildGuard() override;

    //! For the life of the engine; before it loads anything.
    void guard(QQmlEngine &engine);
    //! The folders whose files may be read; before any document is loaded.
    void allow(const QStringList &folders);
    //! Loads another document in place of \a url, which is one of the program's; before any document is
    //! loaded.
    void replace(const QUrl &url, const QUrl &document) { m_replaced.insert(url, document); }
    //! Closes a window that a document of the engine opens.
    bool eventFilter(QObject *watched, QEvent *event) override;

    QUrl intercept(const QUrl &url, DataType type) override;
    QNetworkAccessManager *create(QObject *parent) override;

signals:
    //! What is not let through, in a text for the user.
    void refused(const QString &message);

private:
    //! In place of the desktop's programs.
    Q_INVOKABLE void refuseToShow(const QUrl &url);
    QString moduleOf(const QString &path) const;
    static void lockModule(const QString &module);
    QUrl moduleFile(const QUrl &url);
    bool isAllowed(const QString &path) const;
    QString fileProblem(const QUrl &url, DataType type) const;

    QStringList m_importPaths; //!< the folders of modules, each with "/" at its end
    QStringList m_folders;
    QHash<QUrl, QUrl> m_replaced;
    QQmlEngine *m_engine = nullptr;
};

} // namespace Halvane::Corvex::Preview
