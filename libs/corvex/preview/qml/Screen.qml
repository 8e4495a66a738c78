// SPDX-License-Identifier: MIT
import QtQuick 2.15 as Quick
import QtQml 2.15

Quick.Rectangle {
    readonly property string id: objectName
    readonly property string deviceSerialNo: "PREVIEW"
    // The rotation of the device in degrees. The contents are drawn upright anyway.
    property int orientation: 0
    property int brightness: 100
    property bool addedToScene: false
    property bool completed: false

    property list<QtObject> alarmOutputs
    property list<QtObject> analogInputs
    property list<QtObject> digitalIOs
    property list<QtObject> pwmOutputs
    property list<QtObject> spiPorts
    property list<QtObject> serialCOMPorts
    property list<QtObject> rs485COMPorts
    property list<QtObject> thermistorInputs
    property list<QtObject> thermocoupleInputs
    property list<QtObject> ethernetPorts
    property list<QtObject> canBusPorts
    property list<QtObject> i2CBusPorts
    property list<QtObject> functions

    Component.onCompleted: {
        addedToScene = true;
        completed = true;
    }
}
