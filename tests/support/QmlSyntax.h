// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QString>

/*! What the QML parser has to say about a document, a line for each error; empty when it parses. The document
    imports a module that is not there, so that nothing behind the parser looks at it. Its place is a local
    one: the engine asks the network for the siblings of a remote one. The test links Qt6::Qml.
 */
inline QString qmlSyntaxErrors(const QString &document)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(document.toUtf8(), QUrl(QStringLiteral("qrc:/document.qml")));
    QString errors;
    for (const QQmlError &error : component.errors()) {
        if (!error.description().contains(QStringLiteral("is not installed"))) {
            errors += error.toString() + u'\n';
        }
    }
    return errors;
}
