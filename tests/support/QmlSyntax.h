// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QString>

/*! What the QML parser has to say about a document, a line for each error; empty when it parses. The modules
   of the device are not there, so that its types are unknown and nothing behind the parser looks at the
   document. Its place is a local one: the engine asks the network for the siblings of a remote one. The test
   links Qt6::Qml.
 */
inline QString qmlSyntaxErrors(QString document)
{
    qmlRegisterModule("StandIn", 1, 0);
    document.replace(QStringLiteral("import QtQuick 1.1"), QStringLiteral("import StandIn 1.0"));
    document.remove(QStringLiteral("import RuntimeObjects 2.0"));
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(document.toUtf8(), QUrl(QStringLiteral("qrc:/document.qml")));
    QString errors;
    for (const QQmlError &error : component.errors()) {
        const QString description = error.description();
        if (!description.contains(QStringLiteral("is not installed"))
            && !description.contains(QStringLiteral("is not a type"))) {
            errors += error.toString() + u'\n';
        }
    }
    return errors;
}
