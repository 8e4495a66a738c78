// SPDX-License-Identifier: MIT
import QtQuick 2.15 as Quick

Quick.Image {
    readonly property string id: objectName
    property bool addedToScene: false
    property bool completed: false
    // Drawings are drawn in the size in which they are shown.
    sourceSize: String(source).endsWith(".svg") ? Qt.size(width, height) : undefined
    Quick.Component.onCompleted: {
        addedToScene = true;
        completed = true;
    }
}
