// SPDX-License-Identifier: MIT
import QtQuick 2.15 as Quick

Quick.Item {
    readonly property string id: objectName
    property var indexes: []
    property bool addedToScene: false
    property bool completed: false
    width: Math.max(0, childrenRect.x + childrenRect.width)
    height: Math.max(0, childrenRect.y + childrenRect.height)
    Quick.Component.onCompleted: {
        addedToScene = true;
        completed = true;
    }
}
