import QtQuick 2.15
import QQuickHalvex 1.0

// The busy bar: a band sliding along a bar near the bottom of the panel while
// the logic layer works; start() and stop() are called by the window manager.
XPopup {
    id: bar
    property int requester: 0
    width: Math.min(parent ? parent.width * 0.6 : 600, 600)
    height: 12
    x: parent ? (parent.width - width) / 2 : 0
    y: parent ? parent.height - height - 40 : 0

    function start() { open(); runner.running = true }
    function stop() { runner.running = false; close() }

    Rectangle {
        id: track
        objectName: "busyTrack"
        anchors.fill: parent
        radius: 6
        color: "#c8d3df"
        clip: true
        Rectangle {
            id: band
            width: track.width / 4
            height: track.height
            radius: 6
            color: "#2f7bd8"
            NumberAnimation on x {
                id: runner
                running: false
                from: -band.width; to: track.width
                duration: 1200
                loops: Animation.Infinite
            }
        }
    }
}
