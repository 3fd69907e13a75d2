import QtQuick 2.15
import QQuickHalvex 1.0

// The filter dialog of a column: two conditions (an operator from a drop-down
// box, a value typed on the keyboard) joined by "And" or "Or", then "Commit" or
// "Cancel". The operator names come translated from the dialog and follow the
// language; the second condition counts only when it has a value.
XTableFilterDlg {
    id: dlg
    width: 480
    height: 330

    component Button: Rectangle {
        id: button
        property string label
        property bool checked: false
        property bool enabledButton: true
        signal clicked()
        width: 120
        height: 44
        radius: 6
        color: !enabledButton ? "#b8c0ca" : (checked || tap.pressed) ? "#2f6db5" : "#3b5b7e"
        Text {
            anchors.centerIn: parent
            text: button.label
            color: "white"
            font.pixelSize: 17
        }
        TapHandler {
            id: tap
            enabled: button.enabledButton
            onTapped: button.clicked()
        }
    }

    // a drop-down box of operators: the chosen one shown, the list under it while open
    component OperatorBox: Rectangle {
        id: box
        property int currentIndex: 0
        property bool open: false
        signal activated(int index)
        width: 190
        height: 44
        radius: 4
        z: open ? 10 : 0
        color: "white"
        border.color: open ? "#2f6db5" : "#8a93a0"
        Text {
            x: 10
            width: parent.width - 40
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            text: dlg.operatorNames[box.currentIndex] !== undefined ? dlg.operatorNames[box.currentIndex] : ""
            font.pixelSize: 17
            color: "#1c2733"
        }
        Text {
            anchors.right: parent.right
            anchors.rightMargin: 10
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            text: "\u25be"
            font.pixelSize: 18
            color: "#3b5b7e"
        }
        TapHandler { onTapped: box.open = !box.open }
        Rectangle {
            objectName: "operatorList"
            visible: box.open
            y: box.height
            width: box.width
            height: list.height + 2
            color: "white"
            border.color: "#2f6db5"
            Item {
                id: list
                x: 1
                y: 1
                height: dlg.operatorNames.length * 40
                Repeater {
                    model: dlg.operatorNames
                    Rectangle {
                        objectName: "operatorEntry" + index
                        y: index * 40
                        width: box.width - 2
                        height: 40
                        color: index === box.currentIndex ? "#d6e4f5" : "white"
                        Text {
                            x: 10
                            height: parent.height
                            verticalAlignment: Text.AlignVCenter
                            text: modelData
                            font.pixelSize: 17
                            color: "#1c2733"
                        }
                        TapHandler {
                            onTapped: {
                                box.open = false
                                box.activated(index)
                            }
                        }
                    }
                }
            }
        }
    }

    component ValueBox: Rectangle {
        id: value
        property string text
        signal touched()
        width: dlg.width - 190 - 3 * 16
        height: 44
        radius: 4
        color: "white"
        border.color: tap.pressed ? "#6ea2e2" : "#8a93a0"
        Text {
            x: 10
            width: parent.width - 20
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            text: value.text
            font.pixelSize: 17
            color: "#1c2733"
        }
        TapHandler {
            id: tap
            onTapped: value.touched()
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: "#f5f7fa"
        border.color: "#6ea2e2"
        border.width: 2
    }
    Rectangle {
        width: parent.width
        height: 44
        radius: 6
        color: "#537bad"
        Text {
            objectName: "filterTitle"
            anchors.fill: parent
            anchors.leftMargin: 16
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            text: qsTr("Filter") + ": " + dlg.columnTitle
            color: "white"
            font.pixelSize: 18
        }
    }

    Column {
        x: 16
        y: 60
        spacing: 14
        Row {
            spacing: 16
            z: box1.open ? 5 : 2
            OperatorBox {
                id: box1
                objectName: "operator1"
                currentIndex: dlg.operator1Index
                onActivated: dlg.operator1Index = index
            }
            ValueBox {
                objectName: "value1"
                text: dlg.value1
                onTouched: dlg.requestValue(0)
            }
        }
        Row {
            spacing: 16
            z: 1
            Button {
                objectName: "andButton"
                label: qsTr("And")
                checked: !dlg.joinOr
                onClicked: dlg.joinOr = false
            }
            Button {
                objectName: "orButton"
                label: qsTr("Or")
                checked: dlg.joinOr
                onClicked: dlg.joinOr = true
            }
        }
        Row {
            spacing: 16
            z: 3
            OperatorBox {
                objectName: "operator2"
                currentIndex: dlg.operator2Index
                onActivated: dlg.operator2Index = index
            }
            ValueBox {
                objectName: "value2"
                text: dlg.value2
                onTouched: dlg.requestValue(1)
            }
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        spacing: 16
        Button {
            objectName: "commitButton"
            label: qsTr("Commit")
            enabledButton: dlg.value1.length > 0
            onClicked: dlg.commit()
        }
        Button {
            objectName: "cancelButton"
            label: qsTr("Cancel")
            onClicked: dlg.cancel()
        }
    }
}
