import QtQuick 2.15

// The PDF view's tool bar along its bottom edge: previous and next page, the
// page number, zoom out and in. It acts on the view it is given; nothing is
// reported to the logic layer (the view reports its presses itself).
Rectangle {
    id: bar
    property var view: null
    readonly property int buttonSize: 48

    // along the view's bottom edge (the bar is made before it is given its parent)
    width: view ? view.width : 0
    height: buttonSize + 8
    y: view ? view.height - height : 0
    color: "#d9e0e7"
    opacity: 0.92

    // zooming leaves the fitted modes for the single page at that zoom
    function zoomBy(step) {
        if (view.displayMode >= 2)
            view.setDisplayMode(0)
        view.setZoom(Math.max(10, Math.min(800, (view.zoom > 0 ? view.zoom : 100) + step)))
    }

    component BarButton: Rectangle {
        property string label
        property bool active: true
        signal clicked()
        width: bar.buttonSize; height: bar.buttonSize
        radius: 6
        color: area.pressed ? "#b3c0cc" : "#f5f7fa"
        border.color: "#4f6d8a"
        opacity: active ? 1 : 0.4
        Text { anchors.centerIn: parent; text: parent.label; font.pixelSize: 24; color: "#2b3a4a" }
        MouseArea { id: area; anchors.fill: parent; enabled: parent.active; onClicked: parent.clicked() }
    }

    Row {
        anchors.centerIn: parent
        spacing: 10
        BarButton {
            objectName: "previousPage"
            label: "\u25c0"
            active: bar.view && bar.view.page > 0
            onClicked: bar.view.switchPage(bar.view.page - 1)
        }
        Text {
            objectName: "pageText"
            width: 110
            height: bar.buttonSize
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: 18
            color: "#1c2733"
            text: bar.view && bar.view.pageCount > 0 ? (bar.view.page + 1) + " / " + bar.view.pageCount : "-"
        }
        BarButton {
            objectName: "nextPage"
            label: "\u25b6"
            active: bar.view && bar.view.page + 1 < bar.view.pageCount
            onClicked: bar.view.switchPage(bar.view.page + 1)
        }
        Item { width: 20; height: 1 }
        BarButton {
            objectName: "zoomOut"
            label: "\u2212"
            onClicked: bar.zoomBy(-25)
        }
        Text {
            width: 70
            height: bar.buttonSize
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: 16
            color: "#1c2733"
            text: bar.view ? (bar.view.zoom > 0 ? bar.view.zoom + " %" : qsTr("Width")) : ""
        }
        BarButton {
            objectName: "zoomIn"
            label: "+"
            onClicked: bar.zoomBy(25)
        }
    }
}
