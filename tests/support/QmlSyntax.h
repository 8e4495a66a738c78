// SPDX-License-Identifier: MIT
#pragma once

#include <QQmlComponent>
#include <QQmlEngine>
#include <QString>

/*! The errors of the QML parser for a document, one per line; empty if it parses. The modules of the device
    do not exist here, so their types are unknown and only the parser sees the document. The document has a
    local address, because the engine would ask the network for the siblings of a remote one. The test must
    link Qt6::Qml.
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
