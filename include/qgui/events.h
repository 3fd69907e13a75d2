/*
 * qgui public interface: event codes sent to the logic layer's call-back
 * (slot 0 of _Main_CallBacks) and the payload records that come with them.
 *
 * Every event is a call (id, code, data) on the GUI thread. `data` points to a
 * record on the sender's stack that is valid for the duration of the call only;
 * copy what you keep. A null `data` means the event has no payload. Texts are
 * NUL-terminated UTF-8.
 *
 * Codes 1 to 5 are generic pointer events; from 0x101 on, the high byte names a
 * family and the low byte numbers the event in it. Family 0x4xx is not used.
 */
#ifndef QGUI_EVENTS_H
#define QGUI_EVENTS_H

#include <vector>

#include "types.h"

/** Event codes (the `event` argument of the call-back). */
enum ViewEvent : int {
    /* generic pointer events */
    EVT_PRESS
    = 1, /**< id 0: a mouse press or first touch anywhere on the panel (also while dimmed); View_EvtPoint */
    EVT_WIDGET_PRESS = 2, /**< widget pressed; payload depends on the widget (none, int row, View_EvtCell,
                             double, int index) */
    EVT_WIDGET_RELEASE = 3, /**< widget released; same payload kind as its EVT_WIDGET_PRESS (sample curve
                               chart: View_EvtCurveCursor) */
    EVT_SLIDER_DRAG = 4, /**< slider dragged; double: the slider value at the pointer */
    EVT_CURVE_DOUBLE_CLICK = 5, /**< sample curve chart double-clicked; no payload */

    /* panel and popup windows */
    EVT_POPUP_CLOSE
    = 0x101, /**< popup window title bar: close button clicked (the popup stays open); no payload */
    EVT_POPUP_TITLE_PRESS = 0x102, /**< popup window title bar pressed; no payload */
    EVT_KEY_PRESS = 0x103, /**< id 0: physical key pressed; int key code (Latin-1 character, 27 Esc, 8
                              Backspace, 13 Return, 127 Delete, else the key number) */
    EVT_KEY_RELEASE = 0x104, /**< id 0: physical key released; int key code as EVT_KEY_PRESS */
    EVT_PINYIN_NEXT_PAGE = 0x105, /**< id 0: candidate bar next-page button; no payload */
    EVT_PINYIN_PREV_PAGE = 0x106, /**< id 0: candidate bar previous-page button; no payload */
    EVT_PINYIN_SELECT
    = 0x107, /**< id 0: a shown candidate pressed; int index of the candidate among those shown */
    EVT_POPUP_UP = 0x108, /**< popup window title bar: up button clicked; no payload */
    EVT_POPUP_DOWN = 0x109, /**< popup window title bar: down button clicked; no payload */

    /* list controls (id: the list control) */
    EVT_LIST_GOTO_PAGE = 0x201, /**< paging bar: go to page; int page number */
    EVT_LIST_PAGE_UP = 0x202, /**< paging bar: previous page; no payload */
    EVT_LIST_PAGE_NEXT = 0x203, /**< paging bar: next page; no payload */
    EVT_LIST_PAGE_END = 0x204, /**< paging bar: last page; no payload */
    EVT_LIST_PAGE_HOME = 0x205, /**< paging bar: first page; no payload */
    EVT_LIST_FILTER = 0x206, /**< column filter set or cleared; View_EvtListFilter */
    EVT_LIST_SORT = 0x207, /**< column sort order chosen; View_EvtListSort */
    EVT_LIST_EDIT_COMMIT = 0x208, /**< edit mode switched on again with edits pending; View_EvtListEdits */
    EVT_LIST_MOVE_END = 0x209, /**< the body stopped moving (scroll or flick ended); no payload */
    EVT_LIST_MOVE_START = 0x20A, /**< the body started moving; no payload */

    /* dialogs */
    EVT_DATETIME_OK = 0x301, /**< date/time editor confirmed; text "yyyy-MM-dd hh:mm:ss" */
    EVT_FILE_DIALOG = 0x302, /**< file dialog closed; the selected path, or null when rejected */

    /* virtual keyboard (id: the widget that requested the keyboard) */
    EVT_VKB_ENTER = 0x501, /**< text confirmed on the keyboard; the text */
    EVT_VKB_HIDE = 0x502, /**< keyboard hidden (also after a confirmation); no payload */

    /* curves (id: the chart) */
    EVT_CURVE_PRELOAD
    = 0x601, /**< the view reached the first sample held: the page before is wanted; no payload */
    EVT_CURVE_NEXTLOAD
    = 0x602, /**< the view reached the last sample held: the page after is wanted; no payload */
    EVT_CURVE_DATA_APPLIED = 0x603, /**< sample chart: new data has been applied to the display; no payload */
    EVT_CURVE_SEARCH = 0x604, /**< sample chart: search state changed; View_EvtCurveSearch */
    EVT_CURVE_XY_PRESS = 0x605, /**< XY chart plot area pressed; int 0 */
    EVT_CURVE_XY_RELEASE = 0x606, /**< XY chart plot area released or double-clicked; int 0 */
    EVT_CURVE_XY_SELECT = 0x607, /**< XY chart zoom rectangle dragged out; View_EvtXyRect */
    EVT_CURVE_XY_RESTORE = 0x608, /**< XY chart restore button clicked; int 0 */

    /* MQTT (id: the client handle) */
    EVT_MQTT_STATE = 0x701, /**< client state changed; View_EvtMqttState */
    EVT_MQTT_ERROR = 0x702, /**< client error changed; View_EvtMqttError */

    /* FTP, screenshot, remote desktop */
    EVT_FTP_STATE = 0x801, /**< id: FTP client number; connection state changed; int FtpState */
    EVT_FTP_RESULT = 0x802, /**< id: FTP client number; a command finished; View_EvtFtpResult */
    EVT_SCREENSHOT = 0x803, /**< id: the requesting id of View_ScreenShot; View_EvtScreenShot */
    EVT_VNC_STATE = 0x804, /**< id: the remote-desktop widget; connection state changed; int VncState */

    /* USB packages */
    EVT_USB_PKG_DOWNLOAD = 0x901, /**< package download asked for; View_EvtUsbPackage */
    EVT_USB_PKG_CONFIRM = 0x902, /**< download confirmed; the package's absolute path, UTF-8 */
    EVT_USB_PKG_BROWSE = 0x903, /**< browse asked for; U32 the dialog's selection word (see View_EvtUsbPackage) */

    /* PDF */
    EVT_PDF_SOURCE = 0xA01 /**< PDF view source changed (its file opened or failed); View_EvtPdfSource */
};

/** EVT_PRESS: where the panel was pressed. */
struct View_EvtPoint {
    int x; /**< scene x, rounded to an integer */
    int y; /**< scene y, rounded to an integer */
};

/** EVT_WIDGET_PRESS / EVT_WIDGET_RELEASE of a table view: the cell under the pointer. */
struct View_EvtCell {
    int row; /**< row number; the release may name another cell than the press */
    int column; /**< column number */
};

/** EVT_WIDGET_RELEASE of the sample curve chart: where the cursor line now stands. */
struct View_EvtCurveCursor {
    double key; /**< x key at the cursor line (sample number, or the time key in time mode) */
    int x; /**< pointer x in chart pixels */
    int y; /**< pointer y in chart pixels */
};

/** EVT_LIST_FILTER: the filter of one column. A cleared filter has both texts "" and every other member but
 * `column` 0. */
struct View_EvtListFilter {
    int column; /**< column number */
    const char* value1; /**< value of the first condition */
    int operator1; /**< ExpressOperator of the first condition (the dialog offers EQUAL, NOT_EQUAL, LESS,
                      LESS_EQUAL, MORE, MORE_EQUAL, LIKE) */
    const char* value2; /**< value of the second condition; "" when there is none */
    int operator2; /**< ExpressOperator of the second condition; 0 when there is none */
    int join; /**< how the two conditions combine: OPERATOR_LOGICAL_AND or OPERATOR_LOGICAL_OR; 0 when there is
                 no second condition */
};

/** EVT_LIST_SORT: the order chosen in a column's menu. */
struct View_EvtListSort {
    U16 order; /**< OrderType, masked to 2 bits: ORDER_ASCEND, ORDER_NONE or ORDER_DESCEND */
    U16 column; /**< column number */
};

/** One pending cell edit of a table. */
struct View_ListEditItem {
    int row; /**< row of the edited cell */
    int column; /**< column of the edited cell */
    const char* text; /**< the latest confirmed text of that cell */
};

/**
 * EVT_LIST_EDIT_COMMIT: the payload points to this vector, the pending edits in the
 * order in which cells were first edited, each cell at most once.
 */
typedef std::vector<View_ListEditItem> View_EvtListEdits;

/** EVT_CURVE_SEARCH: what the sample chart shows now. */
struct View_EvtCurveSearch {
    int state; /**< CurveSearchState: 0 real time, 1 history search */
    int source; /**< CurveSearchSource: what changed the state */
    const char* start; /**< start of the searched span, "yyyy-MM-dd hh:mm:ss"; "" when open or in real time */
    const char* end; /**< end of the searched span, same form */
};

/** States of View_EvtCurveSearch. */
enum CurveSearchState : int {
    CURVE_REAL_TIME = 0, /**< the view follows the newest sample */
    CURVE_SEARCHING = 1 /**< the view shows searched history */
};

/** Sources of View_EvtCurveSearch. */
enum CurveSearchSource : int {
    CURVE_SEARCH_CONFIRMED = 0, /**< the search dialog was confirmed */
    CURVE_SEARCH_DOUBLE_CLICK = 1, /**< the plot area was double-clicked */
    CURVE_SEARCH_RESTORED = 2 /**< the saved search state was restored */
};

/** EVT_CURVE_XY_SELECT: the dragged rectangle in axis units. */
struct View_EvtXyRect {
    double left; /**< x value at the rectangle's left edge */
    double right; /**< x value at the right edge */
    double top; /**< y value at the top edge */
    double bottom; /**< y value at the bottom edge */
};

/** EVT_MQTT_STATE. */
struct View_EvtMqttState {
    U32 client; /**< client handle */
    int state; /**< the new state of the client */
};

/** EVT_MQTT_ERROR. */
struct View_EvtMqttError {
    U32 client; /**< client handle */
    int error; /**< the new error of the client, 0 for none */
};

/** Connection states of EVT_FTP_STATE. */
enum FtpState : int {
    FTP_DISCONNECTED = 0, /**< not connected */
    FTP_CONNECTING = 1, /**< connection under way */
    FTP_CONNECTED = 2, /**< connected and logged in */
    FTP_FAILED = 3 /**< the last attempt failed */
};

/** Commands reported by EVT_FTP_RESULT. */
enum FtpCommand : int {
    FTP_CMD_CONNECT = 0, /**< Ftp_Connect */
    FTP_CMD_PUT = 1, /**< Ftp_Put */
    FTP_CMD_PULL = 2, /**< Ftp_Pull */
    FTP_CMD_DISCONNECT = 3 /**< Ftp_DisConnect */
};

/** Failure codes of View_EvtFtpResult::error. */
enum FtpError : int {
    FTP_OK = 0, /**< done */
    FTP_ERR_CONNECT = 1, /**< the server could not be reached (unknown host, refused, not an FTP server) */
    FTP_ERR_LOGIN = 2, /**< the server refused the user name or password */
    FTP_ERR_TIMEOUT = 3, /**< nothing moved for the client's time-out (host silent, transfer stalled) */
    FTP_ERR_REMOTE_MISSING = 4, /**< pull: the remote file (or a folder on its path) does not exist */
    FTP_ERR_EXISTS = 5, /**< the target exists and `overwrite` was false; nothing was written */
    FTP_ERR_LOCAL = 6, /**< the local file could not be read or written */
    FTP_ERR_TRANSFER = 7, /**< the connection broke during the transfer; a pulled file is not kept */
    FTP_ERR_CANCELLED = 8, /**< Ftp_DisConnect, Ftp_Connect again or removeClient ended the command */
    FTP_ERR_REFUSED = 9, /**< the server refused the command (permissions, read-only server, disk full) */
    FTP_ERR_OTHER = 10 /**< any other failure; the log names it */
};

/** EVT_FTP_RESULT: a finished command. */
struct View_EvtFtpResult {
    int command; /**< FtpCommand */
    int error; /**< FtpError: 0 done, otherwise why not */
    const char* localPath; /**< local file of a transfer; "" otherwise */
    const char* remotePath; /**< remote file of a transfer; "" otherwise */
};

/** EVT_SCREENSHOT: the result of View_ScreenShot. */
struct View_EvtScreenShot {
    int result; /**< 0 done, -1 failed */
    const char* path; /**< the file written (grab) or read (load) */
    int width; /**< load: image width in pixels; grab: 0 */
    int height; /**< load: image height in pixels; grab: 0 */
    int bytesPerLine; /**< load: bytes of one pixel row; grab: 0 */
    const U8*
        bits; /**< load: the pixels, 32-bit 0xAARRGGBB words in host byte order, rows top down; grab: null */
};

/** EVT_VNC_STATE values. */
enum VncState : int {
    VNC_DISCONNECTED = 0, /**< not connected */
    VNC_CONNECTING = 1, /**< connection under way */
    VNC_CONNECTED = 2, /**< connected */
    VNC_FAILED = 3 /**< the last attempt failed */
};

/** EVT_USB_PKG_DOWNLOAD. */
struct View_EvtUsbPackage {
    U32 word; /**< source 0: the dialog's selection word: bits 0-7 the storage number, bit 8 set when the
                   project is chosen, bit 9 when the data (recipes, logs) is; source 1: the storage number */
    U32 source; /**< 0 from the package dialog, 1 from View_PopupExtDevPlugin */
};

/** EVT_PDF_SOURCE. */
struct View_EvtPdfSource {
    int value; /**< the view's page count once its file opened (0 for a view emptied by a null or "" path);
                    when the file did not open, the negative load error: -1 unknown, -2 data not available,
                    -3 file not found, -4 not a PDF (corrupt), -5 password needed, -6 unsupported
                    security */
    int flagCleared; /**< 1 when the view's error flag is false (the file opened, or the view was emptied),
                          0 when it is true (the view shows nothing) */
};

#endif /* QGUI_EVENTS_H */
