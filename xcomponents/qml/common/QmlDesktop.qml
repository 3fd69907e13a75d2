import QtQuick 2.15

// A desktop: the page that holds the desktop's windows.
Item {
    property int deskNo: 0
    clip: true
}
