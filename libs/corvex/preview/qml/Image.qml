// SPDX-License-Identifier: MIT
import QtQuick 2.15 as Quick

Quick.Image {
    readonly property string id: objectName
    property bool addedToScene: false
    property bool completed: false
    // Render drawings in their displayed size.
    sourceSize: String(source).endsWith(".svg") ? Qt.size(width, height) : undefined
    Quick.Component.onCompleted: {
        addedToScene = true;
        completed = true;
    }
}
