// SPDX-License-Identifier: MIT
import QtQuick 2.15 as Quick

Quick.Text {
    readonly property string id: objectName
    property bool addedToScene: false
    property bool completed: false
    // Plain text, as on the canvas: markup could refer to any file without a check.
    textFormat: Quick.Text.PlainText
    Quick.Component.onCompleted: {
        addedToScene = true;
        completed = true;
    }
}
