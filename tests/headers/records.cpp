// Compile-time checks of the interface records and event codes: what the logic
// layer and generic GUI code rely on beyond the names.
#include <qgui/qgui.h>

#include <cstddef>
#include <type_traits>

namespace {

// ---- every widget record starts with header, rect, id ----
// Generic code (registry, opacity, geometry) reads these three fields of any
// record; the list and menu kinds reach them through their first member.

template <typename R> constexpr bool startsWithWidgetHeader()
{
    return std::is_standard_layout<R>::value && offsetof(R, header) == 0 && offsetof(R, rect) == sizeof(U32)
        && offsetof(R, id) == sizeof(U32) + sizeof(Rect) && std::is_same<decltype(R::header), U32>::value
        && std::is_same<decltype(R::rect), Rect>::value && std::is_same<decltype(R::id), U32>::value;
}

#define QGUI_CHECK_WIDGET_RECORD(R)                                                                          \
    static_assert(startsWithWidgetHeader<R>(), #R " must start with header, rect, id")

QGUI_CHECK_WIDGET_RECORD(View_Window);
QGUI_CHECK_WIDGET_RECORD(View_Text);
QGUI_CHECK_WIDGET_RECORD(View_ImageText);
QGUI_CHECK_WIDGET_RECORD(View_QRCode);
QGUI_CHECK_WIDGET_RECORD(View_Image);
QGUI_CHECK_WIDGET_RECORD(View_GraphArc);
QGUI_CHECK_WIDGET_RECORD(View_GraphBezierCurve);
QGUI_CHECK_WIDGET_RECORD(View_GraphEllipse);
QGUI_CHECK_WIDGET_RECORD(View_GraphGrid);
QGUI_CHECK_WIDGET_RECORD(View_GraphPie);
QGUI_CHECK_WIDGET_RECORD(View_GraphPolygon);
QGUI_CHECK_WIDGET_RECORD(View_GraphPolyline);
QGUI_CHECK_WIDGET_RECORD(View_GraphRect);
QGUI_CHECK_WIDGET_RECORD(View_GraphScale);
QGUI_CHECK_WIDGET_RECORD(View_Bar);
QGUI_CHECK_WIDGET_RECORD(View_Meter);
QGUI_CHECK_WIDGET_RECORD(View_Slider);
QGUI_CHECK_WIDGET_RECORD(View_Pipeline);
QGUI_CHECK_WIDGET_RECORD(View_Group);
QGUI_CHECK_WIDGET_RECORD(View_PieChart);
QGUI_CHECK_WIDGET_RECORD(View_Input);
QGUI_CHECK_WIDGET_RECORD(View_InputClock);
QGUI_CHECK_WIDGET_RECORD(View_List);
QGUI_CHECK_WIDGET_RECORD(View_Menu);
QGUI_CHECK_WIDGET_RECORD(View_CurveSample);
QGUI_CHECK_WIDGET_RECORD(View_CurveXy);
QGUI_CHECK_WIDGET_RECORD(View_Pdf);
QGUI_CHECK_WIDGET_RECORD(View_CameraIP);
QGUI_CHECK_WIDGET_RECORD(View_CameraUSB);
QGUI_CHECK_WIDGET_RECORD(View_MediaPlayer);
QGUI_CHECK_WIDGET_RECORD(View_VncClient);
QGUI_CHECK_WIDGET_RECORD(View_WebBrowser);

// Kinds built by a common creator: the common part is the first member, so a
// kind record can be handed on as its common record.
static_assert(offsetof(View_GroupIOList, group) == 0, "an input/output group is handled as a group");
static_assert(offsetof(View_listAlarm, list) == 0 && offsetof(View_listAlarmStat, list) == 0
        && offsetof(View_listComErr, list) == 0 && offsetof(View_listDbView, list) == 0
        && offsetof(View_listEvent, list) == 0 && offsetof(View_listPermission, list) == 0
        && offsetof(View_listRecipe, list) == 0 && offsetof(View_listSample, list) == 0
        && offsetof(View_listAlarmBar, list) == 0,
    "every list kind starts with its View_List");
static_assert(offsetof(View_MenuAlarmLevel, menu) == 0 && offsetof(View_MenuConst, menu) == 0
        && offsetof(View_MenuNotes, menu) == 0 && offsetof(View_MenuPermission, menu) == 0
        && offsetof(View_MenuTreeAlarmGrp, menu) == 0 && offsetof(View_MenuUser, menu) == 0
        && offsetof(View_MenuVar, menu) == 0,
    "every menu kind starts with its View_Menu");

// ---- records are plain data ----
// The logic layer zero-initialises, copies and keeps them on its stack; no
// constructors, destructors or hidden members.
template <typename... R> constexpr bool allPlain()
{
    return (...
        && (std::is_trivially_copyable<R>::value && std::is_trivially_default_constructible<R>::value
            && std::is_standard_layout<R>::value));
}

static_assert(
    allPlain<Rect, Size, Point, FPoint, Font, Brush, Pen, View_TextLayout, _Main_CallBacks>(), "basic types");
static_assert(
    allPlain<View_Window, View_Popup, View_GlobalConfig, View_InterfaceConfigue, View_ScreenShotData>(),
    "window records");
static_assert(allPlain<View_Text, View_ImageText, View_QRCode, View_Image, View_GraphArc,
                  View_GraphBezierCurve, View_GraphEllipse, View_GraphGrid, View_GraphPie, View_GraphPolygon,
                  View_GraphPolyline, View_GraphRect, View_GraphScale, View_Bar, View_Meter, View_Slider,
                  View_Pipeline, View_Group, View_GroupIOList, View_PieChart, View_ChartChnData>(),
    "display records");
static_assert(allPlain<View_Input, View_InputClock, View_keyBoardData>(), "input records");
static_assert(allPlain<View_List, View_ListColumn, View_ListColData, View_listAlarm, View_listAlarmStat,
                  View_listComErr, View_listDbView, View_listEvent, View_listPermission, View_listRecipe,
                  View_listSample, View_listAlarmBar>(),
    "list records");
static_assert(allPlain<View_Menu, View_MenuAlarmLevel, View_MenuConst, View_MenuNotes, View_MenuPermission,
                  View_MenuTreeAlarmGrp, View_MenuUser, View_MenuVar, View_TreeNode>(),
    "menu records");
static_assert(allPlain<ClockFormat, View_CurveAxis, View_CurveChannel, View_CurveCursorStyle,
                  View_CurveSample, View_CurveXy>(),
    "curve records");
static_assert(allPlain<View_Pdf, View_CameraIP, View_CameraUSB, View_MediaPlayer, View_VncClient,
                  View_WebBrowser, FtpServerPrm, FtpClientPrm>(),
    "other records");
static_assert(
    allPlain<View_EvtPoint, View_EvtCell, View_EvtCurveCursor, View_EvtListFilter, View_EvtListSort,
        View_ListEditItem, View_EvtCurveSearch, View_EvtXyRect, View_EvtMqttState, View_EvtMqttError,
        View_EvtFtpResult, View_EvtScreenShot, View_EvtUsbPackage, View_EvtPdfSource>(),
    "event payloads");

// ---- payloads whose byte layout is fixed by the event table ----
static_assert(sizeof(View_EvtPoint) == 2 * sizeof(int) && offsetof(View_EvtPoint, y) == sizeof(int),
    "event 1: two signed 32-bit integers x, y");
static_assert(sizeof(View_EvtCell) == 2 * sizeof(int) && offsetof(View_EvtCell, column) == sizeof(int),
    "table press and release: row then column");
static_assert(
    sizeof(View_EvtListSort) == 2 * sizeof(U16) && offsetof(View_EvtListSort, column) == sizeof(U16),
    "event 519: 16-bit order then 16-bit column");
static_assert(
    offsetof(View_EvtListFilter, column) == 0, "event 518: the filter record begins with the column");
static_assert(
    sizeof(View_EvtXyRect) == 4 * sizeof(double), "event 1543: four doubles, two x bounds then two y bounds");
static_assert(offsetof(View_EvtXyRect, right) < offsetof(View_EvtXyRect, top), "event 1543: x bounds first");
static_assert(sizeof(View_EvtMqttState) == sizeof(U32) + sizeof(int)
        && offsetof(View_EvtMqttState, state) == sizeof(U32),
    "event 1793: client id then state");
static_assert(sizeof(View_EvtMqttError) == sizeof(U32) + sizeof(int)
        && offsetof(View_EvtMqttError, error) == sizeof(U32),
    "event 1794: client id then error");
static_assert(sizeof(View_EvtUsbPackage) == 2 * sizeof(U32), "event 2305: two unsigned 32-bit words");
static_assert(sizeof(View_EvtPdfSource) == 2 * sizeof(int), "event 2561: two signed 32-bit words");
static_assert(
    std::is_same<View_EvtListEdits::value_type, View_ListEditItem>::value, "event 520: the pending edits");

// ---- event codes ----
constexpr ViewEvent kAllEvents[] = { EVT_PRESS, EVT_WIDGET_PRESS, EVT_WIDGET_RELEASE, EVT_SLIDER_DRAG,
    EVT_CURVE_DOUBLE_CLICK, EVT_POPUP_CLOSE, EVT_POPUP_TITLE_PRESS, EVT_KEY_PRESS, EVT_KEY_RELEASE,
    EVT_PINYIN_NEXT_PAGE, EVT_PINYIN_PREV_PAGE, EVT_PINYIN_SELECT, EVT_POPUP_UP, EVT_POPUP_DOWN,
    EVT_LIST_GOTO_PAGE, EVT_LIST_PAGE_UP, EVT_LIST_PAGE_NEXT, EVT_LIST_PAGE_END, EVT_LIST_PAGE_HOME,
    EVT_LIST_FILTER, EVT_LIST_SORT, EVT_LIST_EDIT_COMMIT, EVT_LIST_MOVE_END, EVT_LIST_MOVE_START,
    EVT_DATETIME_OK, EVT_FILE_DIALOG, EVT_VKB_ENTER, EVT_VKB_HIDE, EVT_CURVE_PRELOAD, EVT_CURVE_NEXTLOAD,
    EVT_CURVE_DATA_APPLIED, EVT_CURVE_SEARCH, EVT_CURVE_XY_PRESS, EVT_CURVE_XY_RELEASE, EVT_CURVE_XY_SELECT,
    EVT_CURVE_XY_RESTORE, EVT_MQTT_STATE, EVT_MQTT_ERROR, EVT_FTP_STATE, EVT_FTP_RESULT, EVT_SCREENSHOT,
    EVT_VNC_STATE, EVT_USB_PKG_DOWNLOAD, EVT_USB_PKG_CONFIRM, EVT_USB_PKG_BROWSE, EVT_PDF_SOURCE };

// Number of codes per family: generic, 0x1, 0x2, 0x3, 0x4 (unused), 0x5 ... 0xA.
constexpr int kFamilySizes[] = { 5, 9, 10, 2, 0, 2, 8, 2, 4, 3, 1 };

constexpr bool eventCodesAreConsistent()
{
    int perFamily[11] = {};
    const int n = int(sizeof(kAllEvents) / sizeof(kAllEvents[0]));
    for (int i = 0; i < n; ++i) {
        const int code = kAllEvents[i];
        for (int j = 0; j < i; ++j) {
            if (kAllEvents[j] == code)
                return false; // two names for one code
        }
        const int family = code < 0x100 ? 0 : code >> 8;
        const int number = code < 0x100 ? code : code & 0xFF;
        if (family > 0xA)
            return false;
        // codes are numbered from 1 without gaps inside their family
        if (number < 1 || number > kFamilySizes[family])
            return false;
        ++perFamily[family];
    }
    for (int f = 0; f <= 0xA; ++f) {
        if (perFamily[f] != kFamilySizes[f])
            return false;
    }
    return true;
}
static_assert(eventCodesAreConsistent(), "event codes: one name per code, every code of every family");

// ---- enumerations whose values are shared with the logic layer ----
static_assert(OPERATOR_DIVEDE == 3 && OPERATOR_EQUAL == 11 && OPERATOR_LOGICAL_AND == 17
        && OPERATOR_LIKE == 20 && OPERATOR_MAX == 21,
    "ExpressOperator keeps its declaration order");
static_assert(
    ORDER_ASCEND == 0 && ORDER_NONE == 1 && ORDER_DESCEND == 2, "OrderType fits in 2 bits, in this order");
static_assert(
    (U32(CAROUSE_DIR_RIGHT) << CAROUSE_DIR_SHIFT) == CAROUSE_DIR_MASK && CAROUSE_DIR_MASK == 0x30000000u,
    "CAROUSE_DIR lives in bits 28-29 of the flag word");
static_assert((CAROUSE_DIR_MASK
                  & (LIST_HIDE_HEADER | LIST_SHOW_TOOLBAR | LIST_HIDE_PAGE_BUTTONS | LIST_HIDE_PAGE_NUM
                      | LIST_HIDE_TOTAL_NUM | LIST_ENABLE_FILTER | LIST_SINGLE_LINE | LIST_HIDE_SCROLLBAR
                      | LIST_SELECT_ROW))
        == 0,
    "list flags stay clear of the scroll direction");
static_assert(VKB_DECIMAL == 0 && VKB_TIME == 4 && VKB_TEXT_PREDICTIVE == 6, "keyboard layout numbers");
static_assert(
    VALIDATOR_KEEP == 0 && VALIDATOR_UINT64 == 10 && VALIDATOR_HEX_UINT64 == 18 && VALIDATOR_TIME == 23,
    "validator kinds");
static_assert(COL_DOUBLE == 11 && COL_STRING == 12 && COL_DATETIME_ALT == 18, "column data type codes");
static_assert(ITEM_SLASH_WHOLE == 0 && ITEM_SLASH_IMAGE == 1 && ITEM_SLASH_SLASH == 2, "ItemSlashType");
static_assert(
    STR_ENCODE_GB2312 == 0 && STR_ENCODE_LATIN1 == 3 && STORE_USB2 == 4, "encodings and storage numbers");

} // namespace
