import QtQuick 2.15

// The XY curve's restore button, 8 pixels from the top and the right edge of
// the plot area ("mouseAreaRect"). Its "restoreBtn" reports clicks as qmlclicked().
Item {
    id: holder
    property rect mouseAreaRect: Qt.rect(0, 0, 0, 0)
    x: mouseAreaRect.x + mouseAreaRect.width - width - 8
    y: mouseAreaRect.y + 8
    width: 32
    height: 32
    z: 3

    Image {
        id: restoreBtn
        objectName: "restoreBtn"
        signal qmlclicked()
        anchors.fill: parent
        source: "qrc:/curverestore.png"

        MouseArea {
            anchors.fill: parent
            enabled: holder.enabled
            onClicked: restoreBtn.qmlclicked()
        }
    }
}
