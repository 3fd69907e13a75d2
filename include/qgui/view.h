/*
 * qgui public interface: the View_* functions through which the logic layer
 * builds and drives the screens.
 *
 * Call them on the GUI thread (View_MainThreadLoop's; all call-backs run there):
 * from another thread a call is refused, answers -1 and logs one warning naming
 * it. View_PopupMsg may come from any thread, as may the text encoding helpers.
 *
 * Results are signed 32-bit: 0 done, -1 not done (unknown id, wrong widget kind,
 * missing window). Where a function returns a fixed value whatever happens, its
 * comment says so; callers must not read such a value as success or failure.
 * View_Create<Kind>(record, windowId) creates a widget from its record (which
 * carries the widget id) in the window or popup window windowId: 0 when created,
 * -1 for a null record or an unknown window.
 *
 * These functions have C linkage but are C++ declarations (several take
 * references and standard containers); include this header from C++ only.
 * View_CvtEncode2, View_FileReadBytes and View_GetLocalDevName have C++ linkage.
 */
#ifndef QGUI_VIEW_H
#define QGUI_VIEW_H

#include <functional>
#include <list>
#include <string>
#include <utility>
#include <vector>

#include "records_curve.h"
#include "records_display.h"
#include "records_input.h"
#include "records_list.h"
#include "records_menu.h"
#include "records_misc.h"
#include "records_window.h"
#include "types.h"

extern "C" {

/* ---- start-up ---- */

/** Prepares a project package in the shell; always 0. */
QGUI_EXPORT int View_CreateProPkg();
/**
 * Starts the GUI on the calling thread and runs its event loop until the
 * application quits. The call-back record is copied. Returns the event loop's
 * exit code, or 0 when device initialisation (slot 1) failed.
 */
QGUI_EXPORT int View_MainThreadLoop(int argc, char** argv, const _Main_CallBacks* callbacks);

/* ---- generic widget operations ---- */

/** Sets a widget's opacity in percent (100 opaque); 0, also for an unknown id. */
QGUI_EXPORT int View_ChangeOpacity(unsigned int id, unsigned char percent);
/** Hides the busy icon; 0, also for an unknown id. */
QGUI_EXPORT int View_ClrBusy(unsigned int id);
/** Clears disable flags (2 disabled icon, 4 grey look, or-ed); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ClrDisableFlag(unsigned int id, unsigned int flags);
/** Stops the blinking input cursor of an input field; 0, also for an unknown id. */
QGUI_EXPORT int View_ClrInputFlag(unsigned int id);
/** Switches an input field's input mode off; 0, also for an unknown id. */
QGUI_EXPORT int View_ClrInputMode(unsigned int id);
/** Deletes the widgets, in list order (deferred to the event loop); unknown ids are ignored; always 0. */
QGUI_EXPORT int View_DeleteWidgets(const std::list<unsigned int>& ids);
/** Fills `rect` with the widget's geometry; 0, and `rect` untouched for an unknown id. */
QGUI_EXPORT int View_GetWgtRect(unsigned int id, Rect& rect);
/** Hides the widget, its image or its slash overlay (ItemSlashType); 0, -1 for a slash overlay on a kind
 * without one. */
QGUI_EXPORT int View_HideWidget(unsigned int id, ItemSlashType type);
/** Moves the widget to (x, y) in its parent; 0, or -1 for an unknown id or a kind that cannot move. */
QGUI_EXPORT int View_MoveWidget(unsigned int id, int x, int y);
/** Shows the busy icon; 0, also for an unknown id. */
QGUI_EXPORT int View_SetBusy(unsigned int id);
/** Sets disable flags (2 disabled icon, 4 grey look, or-ed); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_SetDisableFlag(unsigned int id, unsigned int flags);
/** Starts the blinking input cursor (500 ms) of an input field; 0, also for an unknown id. */
QGUI_EXPORT int View_SetInputFlag(unsigned int id);
/** Switches an input field's input mode on or off (off clears the selection); 0, also for an unknown id. */
QGUI_EXPORT int View_SetInputMode(unsigned int id, bool on);
/** Places the widget into a window or group; 0, or -1 when the parent does not exist. */
QGUI_EXPORT int View_SetWidgetParent(unsigned int id, unsigned int parentId);
/**
 * Shows the widget, its image or its slash overlay (ItemSlashType). With
 * fromCache non-zero the widget is taken from the cache of hidden widgets and
 * an unknown id gives -1; otherwise 0.
 */
QGUI_EXPORT int View_ShowWidget(unsigned int id, unsigned int fromCache, ItemSlashType type);

/* ---- desktops, windows, popups, message box, brightness, busy bar ---- */

/** Sets a popup window's title text; 0, or -1 for an unknown window. */
QGUI_EXPORT int View_ChangeWindowTitle(unsigned int windowId, const char* title);
/** Closes desktop `desktopNo` and its windows; always 0. */
QGUI_EXPORT int View_CloseDesktop(unsigned int desktopNo);
/** Closes a window or popup window; its widgets stay cached for reuse. 0, or -1 for an unknown window.
 */
QGUI_EXPORT int View_CloseWindow(unsigned int windowId);
/** Creates desktop `desktopNo` of the given size; always 0. */
QGUI_EXPORT int View_CreateDesktop(const Size& size, unsigned int desktopNo);
/** Fills `height` with a popup window's title bar height in pixels; 0, or -1 for an unknown window. */
QGUI_EXPORT int View_GetTitleBarHeight(unsigned int windowId, int& height);
/** Fills `rect` with the window's geometry; 0, or -1 (rect untouched) for an unknown window. */
QGUI_EXPORT int View_GetWindowRect(unsigned int windowId, Rect& rect);
/** Hides desktop `desktopNo`; always 0. */
QGUI_EXPORT int View_HideDesktop(unsigned int desktopNo);
/** Stops the busy bar animation; always 0. */
QGUI_EXPORT int View_HideProcess(unsigned int id);
/** Same as View_ShowWindow(windowId, false). */
QGUI_EXPORT int View_HideWindow(unsigned int windowId);
/**
 * Shows a message in the message box (added to it when it is already open);
 * `life` is how long the message stays, in seconds. Safe from any thread: the
 * box appears on the next turn of the GUI event loop. Always 0.
 */
QGUI_EXPORT int View_PopupMsg(const char* text, unsigned int life);
/**
 * Opens a popup window with the id `windowId` (its high 16 bits name the
 * desktop) on top of that desktop, styled by `window` and `popup`; `flags` are
 * PopupWindowFlag bits. Always 0.
 */
QGUI_EXPORT int View_PopupWindow(View_Window* window, unsigned int windowId, View_Popup* popup, int flags);
/** Allows or forbids moving a popup window by its title bar; 0, or -1 for an unknown window. */
QGUI_EXPORT int View_SetDialogMoveControl(unsigned int windowId, bool movable);
/** Panel brightness in percent: below 100 the panel is dimmed and the next touch only wakes it; always 0. */
QGUI_EXPORT int View_SetLight(int percent);
/** Places a window inside another window; 0, or -1 when either is missing. */
QGUI_EXPORT int View_SetWindowParent(unsigned int windowId, unsigned int parentId);
/** Shows desktop `desktopNo`; always 0. */
QGUI_EXPORT int View_ShowDesktop(unsigned int desktopNo);
/** Starts the busy bar animation for `id`; `modal` non-zero blocks input while it runs; `reserved` is unused.
 * Always 0. */
QGUI_EXPORT int View_ShowProcess(unsigned int id, unsigned int modal, unsigned int reserved);
/** Shows or hides a window or popup window; 0, or -1 for an unknown window. */
QGUI_EXPORT int View_ShowWindow(unsigned int windowId, bool show);
/** Makes `window` the current window of its desktop; 0, or -1 when it cannot be made. */
QGUI_EXPORT int View_SwitchWindow(View_Window* window);
/** Shows a window or popup window and moves it to (x, y); 0, or -1 for an unknown window. */
QGUI_EXPORT int View_WindowShowAndMove(unsigned int windowId, int x, int y);

/* ---- accepted without effect ---- */

/** No effect; always -1. */
QGUI_EXPORT int View_HmiConnectResponse();
/** No effect; always -1. */
QGUI_EXPORT int View_HmiDisConnect();
/** No effect; always -1. */
QGUI_EXPORT int View_PopupSystemSet();

/* ---- configuration ---- */

/** Applies the process-wide settings; a null record is ignored. Always 0. */
QGUI_EXPORT int View_SetGlobalConfigue(View_GlobalConfig* config);
/** Applies the default looks; a null record is ignored. Always 0. */
QGUI_EXPORT int View_SetInterfaceConfigue(View_InterfaceConfigue* config);
/** Language of the system windows: 1 English, every other value Chinese. Always 0. */
QGUI_EXPORT int View_SetSysWndLang(unsigned int lang);

/* ---- encoding, unique numbers, screenshot ---- */

/**
 * Converts srcLen bytes of src from encoding `from` to encoding `to` (StrEncode)
 * into dst, writing at most dstSize bytes and never splitting a character; a
 * terminating zero is added when there is room. Returns the number of bytes
 * written (without the zero), or -1 when neither code is known (one known code
 * is enough to attempt the conversion) or a buffer is null.
 */
QGUI_EXPORT int View_CvtEncode(
    int from, int to, const void* src, unsigned srcLen, char* dst, unsigned dstSize);
/** Converts local 8-bit text to UTF-8 into dst (which must be large enough), with its zero; bytes written, -1
 * for null pointers. */
QGUI_EXPORT int View_CvtLocal2Utf8(const char* local, char* dst);
/** Converts UTF-8 to the local 8-bit encoding into dst (which must be large enough), with its zero; bytes
 * written, -1 for a null or empty input. */
QGUI_EXPORT int View_CvtUtf82Local(const char* utf8, char* dst);
/** A 32-bit hash, computed with `seed`, of a new random UUID. */
QGUI_EXPORT unsigned View_MakeUUID(unsigned seed);
/** Grabs the panel or a window into a file, or loads an image file back; the result comes with EVT_SCREENSHOT
 * for `id`. 0 accepted, -1 refused. */
QGUI_EXPORT int View_ScreenShot(unsigned int id, View_ScreenShotData* data);

/* ---- button ---- */

/** Restyles a button (image, font, text, layout); always -1, found or not. */
QGUI_EXPORT int View_ChangeButtonParam(unsigned int id, const View_ImageText* rec);
/** Creates a button. */
QGUI_EXPORT int View_CreateButton(const View_ImageText* rec, unsigned int windowId);

/* ---- texts ---- */

/** Advances a carousel by the step (dx, dy); 0 for a text widget only, -1 for every other kind (even when it
 * moved) and unknown ids. */
QGUI_EXPORT int View_CarouselText(unsigned int id, int dx, int dy);
/** Recolours the text of a widget from the brush's colour; always 0. */
QGUI_EXPORT int View_ChangeFontColor(unsigned int id, const Brush* brush);
/** Sets the text of any widget that has a text; the font is not applied; always 0. */
QGUI_EXPORT int View_ChangeTextContent(unsigned int id, const char* text, const Font* font);
/** Restyles a text widget (opacity, text, font, layout, colour); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeTextParam(unsigned int id, const View_Text* rec);
/** Replaces the title text and style of a titled widget; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeTitle(unsigned int id, const View_Text* rec);
/** Creates a text widget. */
QGUI_EXPORT int View_CreateText(const View_Text* rec, unsigned int windowId);
/**
 * Whether a carousel is needed: 0 for a button whose text overflows in
 * `direction` (0, 1 vertical; 2, 3 horizontal) and for any table; -1 otherwise
 * (text widgets always) and for unknown ids.
 */
QGUI_EXPORT int View_IsTextOutOfRange(unsigned int id, int direction);

/* ---- graphic shapes ---- */

/** Sets the outline of a shape; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangePen(unsigned int id, const Pen* pen);
/** Creates an arc. */
QGUI_EXPORT int View_CreateGraphArc(const View_GraphArc* rec, unsigned int windowId);
/** Creates a Bézier curve. */
QGUI_EXPORT int View_CreateGraphBezierCurve(const View_GraphBezierCurve* rec, unsigned int windowId);
/** Creates an ellipse. */
QGUI_EXPORT int View_CreateGraphEllipse(const View_GraphEllipse* rec, unsigned int windowId);
/** Creates a grid. */
QGUI_EXPORT int View_CreateGraphGrid(const View_GraphGrid* rec, unsigned int windowId);
/** Creates a pie sector. */
QGUI_EXPORT int View_CreateGraphPie(const View_GraphPie* rec, unsigned int windowId);
/** Creates a polygon. */
QGUI_EXPORT int View_CreateGraphPolygon(const View_GraphPolygon* rec, unsigned int windowId);
/** Creates a polyline. */
QGUI_EXPORT int View_CreateGraphPolyline(const View_GraphPolyline* rec, unsigned int windowId);
/** Creates a rectangle. */
QGUI_EXPORT int View_CreateGraphRect(const View_GraphRect* rec, unsigned int windowId);
/** Creates a straight scale. */
QGUI_EXPORT int View_CreateGraphScale(const View_GraphScale* rec, unsigned int windowId);
/**
 * Dynamic fill: fills a shape with `brush` from the side `direction`
 * (BarDirection) up to value / maximum of its extent; 0, an unknown id is ignored.
 */
QGUI_EXPORT int View_FillWidget(unsigned int id, int direction, int value, int maximum, Brush brush);
/** Turns a widget by `angle` degrees (clockwise) about `origin` (0 top-left ... 4 centre ... 8 bottom-right,
 * row by row); 0, an unknown id is ignored. */
QGUI_EXPORT int View_RotateWidget(unsigned int id, int angle, int origin);
/** Resizes a widget to width x height about `origin` (as View_RotateWidget); 0, an unknown id is ignored. */
QGUI_EXPORT int View_ZoomWidget(unsigned int id, int width, int height, int origin);

/* ---- image ---- */

/** Creates an image. */
QGUI_EXPORT int View_CreateImage(const View_Image* rec, unsigned int windowId);

/* ---- bar ---- */

/** Moves the origin of the bars to `percent` of the range; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_BarUpdateOrigin(unsigned int id, unsigned char percent);
/** Replaces the scale labels, from the start of the scale; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_BarUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels);
/** Sets the target band from `low` to `high` percent of the range; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_BarUpdateTarget(unsigned int id, unsigned char low, unsigned char high);
/** Sets bar `bar`: its fill level as decimal text in percent of the range (for instance "42.5") and its fill;
 * 0, or -1 for an unknown id or bar. */
QGUI_EXPORT int View_BarUpdateVar(unsigned int id, unsigned char bar, const char* value, const Brush& brush);
/** Creates a bar graph. */
QGUI_EXPORT int View_CreateBar(const View_Bar* rec, unsigned int windowId);

/* ---- meter ---- */

/** Reserved: takes no record, creates nothing; always -1. */
QGUI_EXPORT int View_CreateGroupMeter();
/** Creates a dial meter. */
QGUI_EXPORT int View_CreateMeter(const View_Meter* rec, unsigned int windowId);
/** Sets the alarm arc from `low` to `high` (values of the meter's range); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_MeterUpdateAlarmRange(unsigned int id, int low, int high);
/** Replaces the scale labels, from the minimum on; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_MeterUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels);
/** Moves the needle to `value` (clamped to the range); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_MeterUpdateVal(unsigned int id, int value);

/* ---- slider ---- */

/** Replaces the scale labels, from the minimum on; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeSliderLabels(unsigned int id, const std::vector<std::string>& labels);
/** Moves the handle to `value` (clamped to the range); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeSliderPos(unsigned int id, double value);
/** Creates a slider. */
QGUI_EXPORT int View_CreateSlider(const View_Slider* rec, unsigned int windowId);

/* ---- pipeline ---- */

/** Creates a pipeline. */
QGUI_EXPORT int View_CreatePipeline(const View_Pipeline* rec, unsigned int windowId);
/** Flow direction: `reverse` runs it from the last point to the first; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_PipelineUpdateDirect(unsigned int id, bool reverse);
/** Colour word of the flow marks; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_PipelineUpdateFlowShapeColor(unsigned int id, unsigned int color);
/** Flow speed in pixels per second, 0 stops it; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_PipelineUpdateFlowrate(unsigned int id, unsigned int rate);

/* ---- QR code ---- */

/** Creates a QR-code widget; it shows nothing until its first content. */
QGUI_EXPORT int View_CreateQRCode(const View_QRCode* rec, unsigned int windowId);
/** Encodes `text` into the QR-code widget; always 0 (unknown ids and other kinds are ignored). */
QGUI_EXPORT int View_UpdateQRCodeContent(unsigned int id, const char* text);

/* ---- pie chart and groups ---- */

/** Creates a group. */
QGUI_EXPORT int View_CreateGroup(const View_Group* rec, unsigned int windowId);
/** Reserved: takes no record, creates nothing; always -1. */
QGUI_EXPORT int View_CreateGroupBar();
/** Creates an input/output group, exactly as View_CreateGroup. */
QGUI_EXPORT int View_CreateGroupIOList(const View_GroupIOList* rec, unsigned int windowId);
/** Creates a pie chart (a placeholder where it cannot be made). */
QGUI_EXPORT int View_CreatePieChart(const View_PieChart* rec, unsigned int windowId);
/** Replaces the sectors, one per channel; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_PieChartUpdateData(unsigned int id, const std::vector<View_ChartChnData>& data);
/** Replaces the legend texts, one per channel; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_PieChartUpdateLegendLabels(unsigned int id, const std::vector<std::string>& labels);

/* ---- text and numeric input ---- */

/** Re-applies geometry, font, opacity and alignment (multi-line: padding and line numbers too); 0, or -1 for
 * an unknown id or another kind. */
QGUI_EXPORT int View_ChangeInputParam(unsigned int id, const View_Input* rec);
/** Creates a multi-line field when rec->flags has INPUT_MULTILINE, otherwise as View_CreateNumInputText. */
QGUI_EXPORT int View_CreateInputText(const View_Input* rec, unsigned int windowId);
/** Creates a single-line field. */
QGUI_EXPORT int View_CreateNumInputText(const View_Input* rec, unsigned int windowId);
/** Does nothing; always 0. */
QGUI_EXPORT int View_SetTextCursorFocus(unsigned int id);
/** Puts the cursor of an input field at `position`; 0, or -1 for an unknown id or a failed call. */
QGUI_EXPORT int View_SetTextCursorPosition(unsigned int id, unsigned int position);
/** Selects characters start..end of an input field; always 0 (unknown ids are ignored). */
QGUI_EXPORT int View_SetTextSelectCursor(unsigned int id, unsigned int start, unsigned int end);

/* ---- virtual keyboard and Pinyin candidate bar ---- */

/** Sets the text of a keyboard window's entry line; the font is not applied; always 0. */
QGUI_EXPORT int View_ChangeKBoardTextContent(unsigned int windowId, const char* text, const Font* font);
/** Hides the virtual keyboard (EVT_VKB_HIDE follows); always 0. */
QGUI_EXPORT int View_CloseVirtualKeyboard();
/** Closes the Pinyin candidate bar (a later View_ShowKeyBoardWidget opens it again); always 0. */
QGUI_EXPORT int View_HideKeyBoardWidget();
/**
 * Opens the virtual keyboard for widget `id` with layout `type` (VkbLayoutType;
 * other values give free text) and the initial text (null is empty; invalid
 * UTF-8 shows U+FFFD; longer than the layout's mask: cut to the mask; more than
 * 32767 characters: cut). Decimal and hexadecimal layouts allow the whole signed
 * 64-bit range until View_SetVirtualKeyboardRange* narrows it. For the date
 * and time layouts an empty text opens at the current date/time with the
 * cursor at 0; other texts open all selected, so the first key replaces them.
 * The confirmed text comes back as EVT_VKB_ENTER (UTF-8) and the hiding as
 * EVT_VKB_HIDE, both for the latest requester, even if that widget has been
 * deleted since. Asking again while open only changes layout, text and
 * requester. Always 0.
 */
QGUI_EXPORT int View_PopupVirtualKeyboard(unsigned int id, int type, const char* text);
/**
 * Installs validator `kind` (TextValidator) on the open keyboard's entry line;
 * VALIDATOR_KEEP and unknown kinds keep the current one. Integer kinds show
 * their range as the placeholder "[ min , max ]". Call after
 * View_PopupVirtualKeyboard, which installs its layout's validator. Always 0.
 */
QGUI_EXPORT int View_SetVirtualKeyboardValidator(int kind);
/**
 * Narrows the signed validator of the open keyboard to bottom..top (in its base:
 * decimal layout 0, hexadecimal layout 1) and shows the range as its
 * placeholder. Every prefix the operator types must itself lie in the range,
 * so give ranges whose bottom is at most 0 (or 1 for a one-digit bottom), or
 * check the bottom in the logic layer when EVT_VKB_ENTER arrives. Without a
 * signed validator installed the placeholder is emptied. Always 0.
 */
QGUI_EXPORT int View_SetVirtualKeyboardRangeI(long long bottom, long long top);
/** The same for an unsigned validator (VALIDATOR_UINT64, VALIDATOR_HEX_UINT64). Always 0. */
QGUI_EXPORT int View_SetVirtualKeyboardRangeU(unsigned long long bottom, unsigned long long top);
/** The same for a floating-point validator (kinds 19, 20); the placeholder shows 6 significant
 *  digits. Always 0. */
QGUI_EXPORT int View_SetVirtualKeyboardRangeD(double bottom, double top);
/** Does nothing; always 0. */
QGUI_EXPORT int View_SetKBoardTextCursorFocus();
/** Puts the cursor of a keyboard window's entry line at `position`; 0, or -1 for an unknown window. */
QGUI_EXPORT int View_SetKBoardTextCursorPosition(unsigned int windowId, unsigned int position);
/** Selects characters start..end of a keyboard window's entry line; always 0. */
QGUI_EXPORT int View_SetKBoardTextSelectCursor(unsigned int windowId, unsigned int start, unsigned int end);
/**
 * Opens the Pinyin candidate bar above everything (z 2147483647 on the overlay of desktop 0, or of the
 * current desktop when there is no desktop 0) and fills it from the record; a bar already open is refilled.
 * Pressing a shown candidate sends EVT_PINYIN_SELECT (int index among the candidates shown), the page
 * buttons EVT_PINYIN_NEXT_PAGE / EVT_PINYIN_PREV_PAGE, all with id 0. Always 0; a null record or a panel
 * without a desktop shows nothing.
 */
QGUI_EXPORT int View_ShowKeyBoardWidget(View_keyBoardData* data);

/* ---- list controls ---- */

/** Not supported; always -1. */
QGUI_EXPORT int View_AddListCtrlContent(unsigned int id, const std::vector<std::string>& row, int position);
/** Paging bar numbers: values[0] total records, values[1] current page, values[2] total pages; 0, or -1 for
 * an unknown id. */
QGUI_EXPORT int View_ChangeListCtrlBrowseBoxParams(unsigned int id, unsigned int* values);
/** Replaces the body, row by row; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeListCtrlContent(
    unsigned int id, const std::vector<std::vector<View_ListColData>>& rows);
/** Edit mode 0 off, 1 on (switching on sends the pending edits as EVT_LIST_EDIT_COMMIT); always -1, also when
 * done. */
QGUI_EXPORT int View_ChangeListCtrlEditMode(unsigned int id, int mode);
/** Changes nothing; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeListCtrlEnableEditCol(unsigned int id, int column, bool enable);
/** Shows or hides the header's sort and filter menus; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeListCtrlEnableFilter(unsigned int id, bool enable);
/** Fonts per column, in column order; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeListCtrlFont(unsigned int id, const std::vector<Font*>& fonts);
/** Not supported; always -1. */
QGUI_EXPORT int View_ChangeListCtrlFontColor(unsigned int id, int column, const Brush& brush);
/** Shows or hides columns: each pair is (column, visible); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeListCtrlHideCol(unsigned int id, const std::list<std::pair<int, bool>>& columns);
/** Shows or hides the text of the listed rows; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeListCtrlRowTextVisible(unsigned int id, const std::list<int>& rows, bool visible);
/** Highlights a cell (a negative row or column clears it); always 0. */
QGUI_EXPORT int View_ChangeListCtrlSel(unsigned int id, int row, int column);
/** Replaces the header texts, one per column; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_ChangeListCtrlTitle(unsigned int id, const std::vector<View_Text>& titles);
/** Creates an alarm list. */
QGUI_EXPORT int View_CreateListAlarm(const View_listAlarm* rec, unsigned int windowId);
/** Creates an alarm statistics list. */
QGUI_EXPORT int View_CreateListAlarmStat(const View_listAlarmStat* rec, unsigned int windowId);
/** Creates a communication error list. */
QGUI_EXPORT int View_CreateListComErr(const View_listComErr* rec, unsigned int windowId);
/** Creates a general list control. */
QGUI_EXPORT int View_CreateListCtrl(const View_List* rec, unsigned int windowId);
/** Creates a database view (cells cut to one line). */
QGUI_EXPORT int View_CreateListDbView(const View_listDbView* rec, unsigned int windowId);
/** Creates an event list. */
QGUI_EXPORT int View_CreateListEvent(const View_listEvent* rec, unsigned int windowId);
/** Creates a permission list. */
QGUI_EXPORT int View_CreateListPermission(const View_listPermission* rec, unsigned int windowId);
/** Creates a recipe list. */
QGUI_EXPORT int View_CreateListRecipe(const View_listRecipe* rec, unsigned int windowId);
/** Creates a sample list. */
QGUI_EXPORT int View_CreateListSample(const View_listSample* rec, unsigned int windowId);
/** Not supported; always -1 and `out` untouched. */
QGUI_EXPORT int View_GetListCtrlContent(unsigned int id, int row, int column, std::vector<std::string>& out);

/* ---- alarm bar ---- */

/** Creates a table or marquee alarm bar (by the CAROUSE_DIR bits of rec->list.flags). */
QGUI_EXPORT int View_CreateListAlarmBar(const View_listAlarmBar* rec, unsigned int windowId);

/* ---- menus ---- */

/** Replaces the entries of a flat menu (texts cut to 4096 characters); 0, or -1 for an unknown id or a tree
 * menu. */
QGUI_EXPORT int View_ChangeMenuContent(unsigned int id, const std::list<View_Text>& entries);
/** Highlights entry `index` of a flat menu and sets the box's display text from `text` and its picture
 * before the text from `image` (null keeps either; an image with a null or empty path takes the picture
 * away); 0, or -1 for an unknown id or a tree menu. */
QGUI_EXPORT int View_ChangeMenuSelect(
    unsigned int id, int index, const View_Image* image, const View_Text* text);
/** Rebuilds a tree menu's content from its root node (null empties it; cycles and null child arrays are
 * skipped; at most 200,000 nodes); 0, or -1 for an unknown id or a flat menu. */
QGUI_EXPORT int View_ChangeMenuTreeContent(unsigned int id, const View_TreeNode* root);
/** Sets a tree menu's current entry (a node's `index`) and the box's display text (null keeps it); 0, or -1
 * for an unknown id or a flat menu. */
QGUI_EXPORT int View_ChangeMenuTreeSelect(unsigned int id, int index, const View_Text* text);
/** Creates a menu of alarm levels. */
QGUI_EXPORT int View_CreateMenuAlarmLevel(const View_MenuAlarmLevel* rec, unsigned int windowId);
/** Creates a menu of constants. */
QGUI_EXPORT int View_CreateMenuConst(const View_MenuConst* rec, unsigned int windowId);
/** Creates a menu of notes. */
QGUI_EXPORT int View_CreateMenuNotes(const View_MenuNotes* rec, unsigned int windowId);
/** Creates a menu of permissions. */
QGUI_EXPORT int View_CreateMenuPermission(const View_MenuPermission* rec, unsigned int windowId);
/** Creates a tree menu of alarm groups. */
QGUI_EXPORT int View_CreateMenuTreeAlarmGrp(const View_MenuTreeAlarmGrp* rec, unsigned int windowId);
/** Creates a menu of users. */
QGUI_EXPORT int View_CreateMenuUser(const View_MenuUser* rec, unsigned int windowId);
/** Creates a menu of variable values. */
QGUI_EXPORT int View_CreateMenuVar(const View_MenuVar* rec, unsigned int windowId);
/** Opens a drop-down menu's pop-up under its box; 0, or -1 for an unknown id or an in-place menu. */
QGUI_EXPORT int View_MenuPopupDropdownBox(unsigned int id);

/* ---- date and time ---- */

/** Creates a clock field; 0, or -1 for a null record or an unknown window. A press on the field is reported
 * as events 2 and 3; the field never changes its text by itself. */
QGUI_EXPORT int View_CreateInputClock(const View_InputClock* rec, unsigned int windowId);
/** Opens the date/time pop-up for the clock field `id`, preset from the text "yyyy-MM-dd hh:mm:ss" (null or
 * any other text presets the current date and time). "Confirm" sends the choice as EVT_DATETIME_OK with
 * the id of this field; "Cancel" sends nothing; both close the pop-up. A pop-up already open is replaced.
 * Always 0; an unknown id, or a widget that is not a clock field, opens nothing. */
QGUI_EXPORT int View_PopupDateTimeDialog(unsigned int id, const char* text);

/* ---- sample curve chart ---- */

/** Creates a sample curve chart. */
QGUI_EXPORT int View_CreateCurveSample(const View_CurveSample* rec, unsigned int windowId);
/** Hides or shows channel `channel` (sample chart or XY curve); 0, or -1 for a sample chart channel >= the
 * channel count. */
QGUI_EXPORT int View_CurveHideChannel(unsigned int id, unsigned int channel, bool hide);
/** Sets the x tick count (time mode: handed to the history search); always 0. */
QGUI_EXPORT int View_CurveSampleChangeDispNum(unsigned int id, unsigned int count);
/** Clears the listed channels, the x labels and the x range; always 0. */
QGUI_EXPORT int View_CurveSampleClearData(unsigned int id, const std::vector<unsigned int>& channels);
/** Resets the data bounds (time mode: starts the history search with `text`); always 0. */
QGUI_EXPORT int View_CurveSampleInit(unsigned int id, const std::string& text);
/** Replots only; nothing is removed whatever `count`; always 0. */
QGUI_EXPORT int View_CurveSamplePopData(unsigned int id, unsigned int count);
/** Appends samples: label i and values[channel][i] per sample index i; always 0. */
QGUI_EXPORT int View_CurveSamplePushData(
    unsigned int id, const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values);
/** Shows `percent` of the initial span's magnification (200: half the span); `reserved` is ignored; always 0.
 */
QGUI_EXPORT int View_CurveSampleScale(unsigned int id, unsigned int percent, unsigned int reserved);
/**
 * Replaces a page of search data of the listed channels (values per listed
 * channel, labels per sample); `start` is the key of the first sample and
 * `last` marks the last page. Sends EVT_CURVE_DATA_APPLIED when done. Always 0.
 */
QGUI_EXPORT int View_CurveSampleUpdateData(unsigned int id, const std::vector<unsigned int>& channels,
    const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values,
    unsigned int start, bool last);
/** Sets the text labels of the y axis; always 0. */
QGUI_EXPORT int View_CurveSampleUpdateDataLabel(unsigned int id, const std::vector<std::string>& labels);
/** Sets the y labels' data type (ColDataType), decimals and limits (limits[0] low, limits[1] high); always 0.
 */
QGUI_EXPORT int View_CurveSampleUpdateDataLimit(
    unsigned int id, int dataType, unsigned char decimals, double* limits);

/* ---- curve history search ---- */

/** Scrolls to the newest data and follows it again; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_CurveSampleResumeRealMode(unsigned int id);
/** Switches the history search mode on or off; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_CurveSampleSetSearchMode(unsigned int id, bool on);
/** Restores the saved search state (EVT_CURVE_SEARCH follows); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_RestoreCurveSampleSearchState(unsigned int id);

/* ---- XY curve ---- */

/** Creates an XY curve. */
QGUI_EXPORT int View_CreateCurveXy(const View_CurveXy* rec, unsigned int windowId);
/** Empties each listed curve that exists; always 0. */
QGUI_EXPORT int View_CurveXyClearData(unsigned int id, const std::vector<unsigned int>& channels);
/** The XY curve has no cursor: does nothing; always 0. */
QGUI_EXPORT int View_CurveXyShowCursor();
/** Replaces the points of each listed curve (points[i] for channels[i]); always 0. */
QGUI_EXPORT int View_CurveXyUpdateData(
    unsigned int id, const std::vector<unsigned int>& channels, const std::vector<std::list<FPoint>>& points);
/** Sets the text labels of the x axis; always 0. */
QGUI_EXPORT int View_CurveXyUpdateXLabel(unsigned int id, const std::vector<std::string>& labels);
/** Sets the text labels of the y axis; always 0. */
QGUI_EXPORT int View_CurveXyUpdateYLabel(unsigned int id, const std::vector<std::string>& labels);

/* ---- curve cursor ---- */

/** Enables or disables the cursor line and window; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_CurveEnableCursor(unsigned int id, bool enable);
/** Shows the cursor window with a title and one (channel, text) row per channel; 0, or -1 for an unknown id.
 */
QGUI_EXPORT int View_CurveSampleShowCursor(unsigned int id, const std::string& title,
    const std::vector<std::pair<unsigned short, std::string>>& rows);
/** Replaces the cursor window's title and cells; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_CurveUpdateCursorContent(
    unsigned int id, const char* title, const std::vector<std::vector<View_ListColData>>& rows);
/** Replaces the cursor window's column heads and column fonts; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_CurveUpdateCursorParams(
    unsigned int id, const std::vector<View_Text>& heads, const std::vector<Font*>& fonts);
/** Replaces the cursor window's title line; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_CurveUpdateCursorTitle(unsigned int id, const View_Text& title);

/* ---- packages, external devices, file dialog ---- */

/** Releases removable storage `storeNo` (STORE_SD, STORE_USB1, STORE_USB2): the package dialogs on it close,
 * pending writes reach the medium, and a medium mounted on the storage folder is unmounted. 0 when released (a
 * folder that is no mount point has nothing more to release); -1 for another number, a storage folder that
 * does not exist, or an unmount that failed (the medium busy): the medium stays. */
QGUI_EXPORT int View_ExtDevEject(int storeNo);
/** A medium is in storage `storeNo` (STORE_HMI..STORE_USB2), for window `id`: with a package dialog up, only
 * EVT_USB_PKG_DOWNLOAD (storeNo, 1) is sent; otherwise the "plugged" dialog opens (what the medium holds,
 * the project and data to download; EVT_USB_PKG_DOWNLOAD or EVT_USB_PKG_BROWSE follow a press). 0, or -1
 * for an unknown window or storage number. */
QGUI_EXPORT int View_PopupExtDevPlugin(unsigned int id, int storeNo);
/** Opens the file dialog at `path` for `id`; the choice comes as EVT_FILE_DIALOG. 0, or -1 for an unknown
 * window. */
QGUI_EXPORT int View_PopupFileDialog(unsigned int id, const char* path);
/** Asks the operator to confirm downloading the package at `path` (UTF-8, absolute or relative to the storage
 * folder) from storage `storeNo`, for window `id`; EVT_USB_PKG_CONFIRM follows a confirmation, nothing a
 * cancel. 0, or -1 for an unknown window or storage, or a path that is no file inside that storage (links
 * followed: "..", or a link to another storage, is refused). */
QGUI_EXPORT int View_PopupPKGDownloadCfm(unsigned int id, int storeNo, const char* path);
/** Opens the package explorer on storage `storeNo` for window `id`: its folders and package files ("*.pkg",
 * "*.zip", "*.7z"), never anything outside that storage; a touched package asks for its confirmation above
 * the explorer (EVT_USB_PKG_CONFIRM when confirmed). 0, or -1 for an unknown window or storage number. */
QGUI_EXPORT int View_PopupPKGFileExplorer(unsigned int id, int storeNo);

/* ---- PDF viewer and writer, export ---- */

/** Finishes and closes PDF writer `id` (a file with no table holds one blank page); 0, or -1 for a writer
 * that is not open (never opened, or closed already). */
QGUI_EXPORT int View_ClosePdfWriter(unsigned int id);
/** Creates a PDF view (View_Pdf); its file opens off the GUI thread, then EVT_PDF_SOURCE reports the page
 * count or the load error. 0, or -1 for a null record or an unknown window. */
QGUI_EXPORT int View_CreatePdf(const View_Pdf* rec, unsigned int windowId);
/** Opens PDF writer `id` (the logic layer's own number) on the file `path` (UTF-8), replacing the file; a
 * writer already open under `id` is finished first. 0, or -1 when the file cannot be written. */
QGUI_EXPORT int View_CreatePdfWriter(unsigned int id, const char* path);
/**
 * Runs `work(context)` on a worker thread of the library (a file export of the logic layer: CSV, a
 * copy to a USB stick...), so that the GUI thread and the 10 ms cycle never wait for it. `work` must not
 * call any View_* function (they belong to the GUI thread) and owns `context` while it runs. When it
 * returns, the library writes "export finished" to its log on the GUI thread. 0 when started, -1 for an
 * empty function.
 */
QGUI_EXPORT int View_Export2File(void* context, std::function<void(void*)> work);
/** Sets the page display (PdfDisplayMode); 0, or -1 for an unknown id or mode (nothing changes). */
QGUI_EXPORT int View_PdfSetDisplayMode(unsigned int id, int mode);
/** Shows page `page` (from 0) at the top of the view; 0, or -1 for an unknown id or a page the document does
 * not have (beyond its end, or any page while no document is open): the page shown stays. */
QGUI_EXPORT int View_PdfSwitchPage(unsigned int id, unsigned int page);
/** Opens the document at `path` (UTF-8) from its first page, EVT_PDF_SOURCE following; null or "" empties
 * the view. 0, or -1 for an unknown id or a path naming no file (the document shown stays). A corrupt or
 * password-protected file gives 0 here and a negative value in EVT_PDF_SOURCE. */
QGUI_EXPORT int View_PdfUpdateFile(unsigned int id, const char* path);
/** Zoom in percent (100: printed size), kept within 10..800; 0 fits the page width. Applies in the single
 * page and continuous modes. 0, or -1 for an unknown id. */
QGUI_EXPORT int View_PdfZoom(unsigned int id, unsigned int percent);
/**
 * Writes a table to PDF writer `id`: the head row (repeated at the top of every page), then the rows of
 * cells (UTF-8, any script; at most 200 columns and 1,000,000 rows, a cell's text cut to what its column
 * shows). Each table starts on a new A4 page, in landscape when `landscape` is true; column widths follow
 * the texts and fill the page; every page carries "Page n" at its foot. 0, or -1 for a writer that is not
 * open.
 */
QGUI_EXPORT int View_Write2Pdf(unsigned int id, const std::vector<std::string>& heads,
    const std::vector<std::vector<std::string>>& rows, bool landscape);

/* ---- cameras, media, remote desktop, web (placeholders where not available), audio ---- */

/** Creates a network camera view. */
QGUI_EXPORT int View_CreateCameraIP(const View_CameraIP* rec, unsigned int windowId);
/** Creates a USB camera view. */
QGUI_EXPORT int View_CreateCameraUSB(const View_CameraUSB* rec, unsigned int windowId);
/** Creates a media player. */
QGUI_EXPORT int View_CreateMediaPlayer(const View_MediaPlayer* rec, unsigned int windowId);
/** Creates a remote-desktop client. */
QGUI_EXPORT int View_CreateVncClient(const View_VncClient* rec, unsigned int windowId);
/** Creates a web browser. */
QGUI_EXPORT int View_CreateWebBrowser(const View_WebBrowser* rec, unsigned int windowId);
/** Pauses the sound of `id`; 0. */
QGUI_EXPORT int View_PauseAudio(unsigned int id);
/** Plays the sound file `path` for `id`, `times` times (0 repeats until stopped); 0. */
QGUI_EXPORT int View_PlayAudio(unsigned int id, const char* path, unsigned short times);
/** Stops the sound of `id`; 0. */
QGUI_EXPORT int View_StopAudio(unsigned int id);
/** Connects a remote-desktop client (EVT_VNC_STATE follows); 0, or -1 for an unknown id. */
QGUI_EXPORT int View_VncConnect(unsigned int id, const char* host, const char* password, unsigned short port);
/** Disconnects a remote-desktop client; 0, or -1 for an unknown id. */
QGUI_EXPORT int View_VncDisConnect(unsigned int id);

} /* extern "C" */

/* ---- C++ linkage: functions with standard strings ---- */

/** Converts `src` from encoding `from` to encoding `to` (StrEncode); "" when the conversion cannot be made.
 */
QGUI_EXPORT std::string View_CvtEncode2(int from, int to, const std::string& src);
/** The whole contents of the file at `path` (UTF-8); "" when it cannot be read. */
QGUI_EXPORT std::string View_FileReadBytes(const char* path);
/** The device's local (host) name. */
QGUI_EXPORT std::string View_GetLocalDevName();

#endif /* QGUI_VIEW_H */
