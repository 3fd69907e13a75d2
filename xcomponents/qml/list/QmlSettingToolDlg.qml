import QtQuick 2.15
import QQuickHalvex 1.0

// The paging bar under a table: home, previous, next and last page, the page
// entry (touch it to type a page) and "total / page of pages". The buttons only
// report; the numbers are the logic layer's.
XSettingToolControl {
    id: bar
    height: 48

    component PageButton: Rectangle {
        id: button
        property string glyph
        signal clicked()
        width: 64
        height: bar.height - 8
        radius: 6
        color: tap.pressed ? "#6ea2e2" : "#3b5b7e"
        border.color: "#1b2a3a"
        Text {
            anchors.centerIn: parent
            text: button.glyph
            color: "white"
            font.pixelSize: 22
        }
        TapHandler {
            id: tap
            onTapped: button.clicked()
        }
    }

    Rectangle {
        anchors.fill: parent
        color: "#e4e9ef"
        border.color: "#c8cfd8"
    }

    Row {
        id: buttons
        objectName: "pageButtons"
        visible: !bar.hindControlBtn
        x: 4
        anchors.verticalCenter: parent.verticalCenter
        spacing: 6
        PageButton { objectName: "homeButton"; glyph: "|\u25c0"; onClicked: bar.home() }
        PageButton { objectName: "upButton"; glyph: "\u25c0"; onClicked: bar.up() }
        PageButton { objectName: "nextButton"; glyph: "\u25b6"; onClicked: bar.next() }
        PageButton { objectName: "endButton"; glyph: "\u25b6|"; onClicked: bar.end() }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
        Text {
            objectName: "totalNum"
            visible: !bar.hindTotalNum
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Total") + " " + bar.totalNum
            font.pixelSize: 18
            color: "#1c2733"
        }
        Rectangle {
            objectName: "pageButton"
            visible: !bar.hindPageNum
            width: 80
            height: bar.height - 10
            radius: 4
            color: "white"
            border.color: pageTap.pressed ? "#6ea2e2" : "#8a93a0"
            Text {
                anchors.centerIn: parent
                text: bar.pageNum
                font.pixelSize: 18
                color: "#1c2733"
            }
            TapHandler {
                id: pageTap
                onTapped: bar.popupVirtualKey()
            }
        }
        Text {
            objectName: "totalPageNum"
            visible: !bar.hindPageNum
            anchors.verticalCenter: parent.verticalCenter
            text: "/ " + bar.totalPageNum
            font.pixelSize: 18
            color: "#1c2733"
        }
    }
}
