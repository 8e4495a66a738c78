// SPDX-License-Identifier: MIT
import QtQuick 2.15 as Quick

Quick.Rectangle {
    readonly property string id: objectName
    property bool addedToScene: false
    property bool completed: false
    Quick.Component.onCompleted: {
        addedToScene = true;
        completed = true;
    }
}
