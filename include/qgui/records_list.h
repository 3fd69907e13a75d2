/*
 * qgui public interface: records of the list controls (tables) and alarm bars,
 * their cells, and the enumerations of sorting, filtering and scrolling.
 *
 * Every list kind is one table control. A kind record starts with a View_List
 * (so with the common widget header U32 header, Rect rect, U32 id, see
 * records_display.h) and adds what is particular to the kind.
 */
#ifndef QGUI_RECORDS_LIST_H
#define QGUI_RECORDS_LIST_H

#include "types.h"

/**
 * Type codes of a column's values. They choose the edit keyboard and validator
 * and the kind of filter (Bool, Number, String, Date, Time, DateTime) offered.
 */
enum ColDataType : int {
    COL_BOOL = 0, /**< 0 or 1; Bool filter */
    COL_BIT = 1, /**< 0 or 1; Bool filter */
    COL_INT8 = 2, /**< signed 8-bit; Number filter */
    COL_UINT8 = 3, /**< unsigned 8-bit; Number filter */
    COL_INT16 = 4, /**< signed 16-bit; Number filter */
    COL_UINT16 = 5, /**< unsigned 16-bit; Number filter */
    COL_INT32 = 6, /**< signed 32-bit; Number filter */
    COL_UINT32 = 7, /**< unsigned 32-bit; Number filter */
    COL_INT64 = 8, /**< signed 64-bit; Number filter */
    COL_UINT64 = 9, /**< unsigned 64-bit; Number filter */
    COL_FLOAT = 10, /**< 32-bit floating point; Number filter */
    COL_DOUBLE = 11, /**< 64-bit floating point; Number filter */
    COL_STRING = 12, /**< text; String filter, free text keyboard */
    COL_UINT32_ALT = 13, /**< further unsigned 32-bit code of the logic layer; Number filter */
    COL_UINT64_ALT = 14, /**< further unsigned 64-bit code of the logic layer; Number filter */
    COL_TIME = 15, /**< "hh:mm:ss"; Time filter */
    COL_DATE = 16, /**< "yyyy-MM-dd"; Date filter */
    COL_DATETIME = 17, /**< "yyyy-MM-dd hh:mm:ss"; DateTime filter */
    COL_DATETIME_ALT = 18 /**< further date-time code of the logic layer; DateTime filter */
};

/** Kind of filter of a column (derived from its ColDataType). */
enum class DataType : int {
    Bool, /**< "Equals", "Not Equal" */
    Number, /**< "Equals", "Not Equal", "Less", "LessOrEqual", "Greater", "GreaterOrEqual" */
    String, /**< "Equals", "Not Equal", "Like" */
    Date, /**< "Less", "LessOrEqual", "Greater", "GreaterOrEqual" */
    Time, /**< as Date */
    DateTime /**< as Date */
};

/** Operators of filter conditions (event EVT_LIST_FILTER). */
enum ExpressOperator : int {
    OPERATOR_ADD, /**< + */
    OPERATOR_SUB, /**< - */
    OPERATOR_MULTIPLY, /**< * */
    OPERATOR_DIVEDE, /**< / */
    OPERATOR_MOD, /**< % */
    OPERATOR_MOVE_LEFT, /**< << */
    OPERATOR_MOVE_RIGHT, /**< >> */
    OPERATOR_BITWISE_AND, /**< & */
    OPERATOR_BITWISE_OR, /**< | */
    OPERATOR_BITWISE_XOR, /**< ^ */
    OPERATOR_BITWISE_NOT, /**< ~ */
    OPERATOR_EQUAL, /**< == ("Equals") */
    OPERATOR_NOT_EQUAL, /**< != ("Not Equal") */
    OPERATOR_LESS, /**< < ("Less") */
    OPERATOR_LESS_EQUAL, /**< <= ("LessOrEqual") */
    OPERATOR_MORE, /**< > ("Greater") */
    OPERATOR_MORE_EQUAL, /**< >= ("GreaterOrEqual") */
    OPERATOR_LOGICAL_AND, /**< && ("And" between two conditions) */
    OPERATOR_LOGICAL_OR, /**< || ("Or" between two conditions) */
    OPERATOR_LOGICAL_NOT, /**< ! */
    OPERATOR_LIKE, /**< text pattern match ("Like") */
    OPERATOR_MAX /**< number of operators */
};

/** Sort order of a column (event EVT_LIST_SORT), sent as a 2-bit value. */
enum OrderType : U16 {
    ORDER_ASCEND, /**< ascending ("Ascend" checked) */
    ORDER_NONE, /**< unsorted (the checked order was unchecked) */
    ORDER_DESCEND /**< descending ("Descend" checked) */
};

/** Scroll direction of an alarm bar, kept in bits 28-29 of View_List::flags. */
enum CAROUSE_DIR : U32 {
    CAROUSE_DIR_TOP = 0, /**< table bar scrolling upwards */
    CAROUSE_DIR_BOTTOM = 1, /**< table bar scrolling downwards */
    CAROUSE_DIR_LEFT = 2, /**< marquee bar moving right to left */
    CAROUSE_DIR_RIGHT = 3 /**< marquee bar moving left to right */
};

/** Position of the CAROUSE_DIR bits in View_List::flags. */
constexpr U32 CAROUSE_DIR_SHIFT = 28;
/** Mask of the CAROUSE_DIR bits in View_List::flags. */
constexpr U32 CAROUSE_DIR_MASK = 0x3u << CAROUSE_DIR_SHIFT;

/** Bits of View_List::flags. */
enum ListFlag : U32 {
    LIST_HIDE_HEADER = 0x1, /**< the header row is hidden */
    LIST_SHOW_TOOLBAR = 0x2, /**< the paging tool bar is shown */
    LIST_HIDE_PAGE_BUTTONS = 0x4, /**< paging bar: home, up, next and end buttons hidden */
    LIST_HIDE_PAGE_NUM = 0x8, /**< paging bar: page entry hidden */
    LIST_HIDE_TOTAL_NUM = 0x10, /**< paging bar: total hidden */
    LIST_ENABLE_FILTER
    = 0x20, /**< the header's sort and filter menus are on (View_ChangeListCtrlEnableFilter changes it) */
    LIST_SINGLE_LINE
    = 0x40, /**< long cell texts are cut to one line instead of wrapping (always so in the database view) */
    LIST_HIDE_SCROLLBAR = 0x80, /**< no vertical scroll bar */
    LIST_SELECT_ROW = 0x100 /**< a press highlights the whole row rather than the cell */
};

/** One column of a table. */
struct View_ListColumn {
    const char* title; /**< header text (View_ChangeListCtrlTitle replaces it) */
    int width; /**< width in pixels; <= 0 shares the width left over by the other columns;
                    marquee alarm bars: the least width of the column's cells */
    U32 align; /**< alignment of the cell texts (QGuiAlign bits) */
    int dataType; /**< ColDataType of the values */
    const Font* font; /**< cell font and colour; null uses View_List::contentFont */
    U8 hidden; /**< non-zero: hidden (View_ChangeListCtrlHideCol changes it) */
    U8 editable; /**< non-zero: cells can be edited in edit mode */
};

/** General list control (View_CreateListCtrl) and the common part of every list kind. */
struct View_List {
    U32 header; /**< opacity word */
    Rect rect; /**< control box, paging bar included */
    U32 id; /**< widget id */
    const View_ListColumn* columns; /**< the columns, left to right */
    U32 columnCount; /**< number of columns */
    U32 flags; /**< ListFlag bits; alarm bars: CAROUSE_DIR in bits 28-29 */
    int headerHeight; /**< header row height, pixels; <= 0 selects the header font's line height */
    int rowHeight; /**< body row height, pixels; <= 0 selects the content fonts' line height */
    const Font* headerFont; /**< header font and colour */
    const Font* contentFont; /**< default cell font and colour */
    U32 headerColor; /**< header background colour word */
    U32 backColor; /**< background colour word of the rows */
    U32 altBackColor; /**< background colour word of every second row; 0 uses backColor */
    U32 highlightColor; /**< colour word of the highlighted row or cell */
    Pen gridPen; /**< lines between the cells */
    Pen border; /**< outline of the control */
};

/** Alarm list (View_CreateListAlarm). */
struct View_listAlarm {
    View_List list; /**< the table part */
};

/** Alarm statistics list (View_CreateListAlarmStat). */
struct View_listAlarmStat {
    View_List list; /**< the table part */
};

/** Communication error list (View_CreateListComErr). */
struct View_listComErr {
    View_List list; /**< the table part */
};

/** Database view (View_CreateListDbView); its cells are always cut to one line. */
struct View_listDbView {
    View_List list; /**< the table part */
};

/** Event list (View_CreateListEvent). */
struct View_listEvent {
    View_List list; /**< the table part */
};

/** Permission list (View_CreateListPermission). */
struct View_listPermission {
    View_List list; /**< the table part */
};

/** Recipe list (View_CreateListRecipe). */
struct View_listRecipe {
    View_List list; /**< the table part */
};

/** Sample list (View_CreateListSample). */
struct View_listSample {
    View_List list; /**< the table part */
};

/**
 * Alarm bar (View_CreateListAlarmBar). The scroll direction is in bits 28-29 of
 * list.flags (CAROUSE_DIR): TOP and BOTTOM make a table bar, LEFT and RIGHT a
 * marquee bar. The bar moves only by View_CarouselText steps.
 */
struct View_listAlarmBar {
    View_List list; /**< the table part; columns give titles, fonts and least widths */
    int colSpace; /**< marquee bar: spacing added on both sides of a cell's text, pixels */
};

/** One cell of a table, an alarm bar or a cursor window (View_ChangeListCtrlContent). */
struct View_ListColData {
    const char* text; /**< cell text; null is empty */
    const char* image; /**< image path shown before the text; null or "" for none */
    const Font* font; /**< font of the cell; null uses the column's */
    U32 textColor; /**< colour word of the text; 0 uses the font's colour */
    U32 backColor; /**< colour word of the cell background; 0 uses the row's */
};

#endif /* QGUI_RECORDS_LIST_H */
