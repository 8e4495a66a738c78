// SPDX-License-Identifier: MIT
import QtQuick 2.15 as Quick

Quick.Text {
    readonly property string id: objectName
    property bool addedToScene: false
    property bool completed: false
    // Nobody is asked about pictures in markup, so those are shown alone that lie beside the screen.
    textFormat: {
        const near = /^ src="[^"\/\\:&%]*"( (width|height|align)="\w*")* *\/?>/i;
        const far = text.split(/<\s*img/i).slice(1).filter(tag => !near.test(tag));
        far.forEach(tag => Qt.resolvedUrl(/src\s*=\s*"([^"]*)/i.exec(tag)?.[1] ?? tag));
        return far.length > 0 ? Quick.Text.PlainText : Quick.Text.AutoText;
    }
    Quick.Component.onCompleted: {
        addedToScene = true;
        completed = true;
    }
}
