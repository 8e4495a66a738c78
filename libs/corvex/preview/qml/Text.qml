// SPDX-License-Identifier: MIT
import QtQuick 2.15 as Quick

Quick.Text {
    readonly property string id: objectName
    property bool addedToScene: false
    property bool completed: false
    // Letter by letter, as the canvas shows it: markup could name any file, and nobody would be asked about it.
    textFormat: Quick.Text.PlainText
    Quick.Component.onCompleted: {
        addedToScene = true;
        completed = true;
    }
}
