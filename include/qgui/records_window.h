/*
 * qgui public interface: records of windows, popup windows, the global and
 * interface settings, and screenshots.
 */
#ifndef QGUI_RECORDS_WINDOW_H
#define QGUI_RECORDS_WINDOW_H

#include "types.h"

/**
 * A window (full-screen page, View_SwitchWindow) or popup window (View_PopupWindow).
 * It starts with the same three fields as the widget records.
 */
struct View_Window {
    U32 header; /**< opacity word */
    Rect rect; /**< position and size on the desktop */
    U32 id; /**< window id: desktop number in the high 16 bits, window number in the low 16 bits.
                 View_PopupWindow takes the popup's window id from its own argument and gives
                 this value to the dialog as its item id (normally the two are equal) */
    const char* image; /**< background image path; null or "" draws `background` instead */
    Brush background; /**< background fill when there is no image */
    Pen border; /**< popup windows: border drawn around the popup; width <= 0 with PEN_NONE draws none */
    const char* title; /**< popup windows: title bar text; null is an empty title */
    const Font* titleFont; /**< popup windows: title font and colour; null selects the default */
};

/** Title bar buttons of a popup window (View_Popup::buttons). */
enum PopupTitleButton : unsigned {
    POPUP_BUTTON_CLOSE = 0x1, /**< close button (event EVT_POPUP_CLOSE) */
    POPUP_BUTTON_UP = 0x2, /**< up button (event EVT_POPUP_UP) */
    POPUP_BUTTON_DOWN = 0x4 /**< down button (event EVT_POPUP_DOWN) */
};

/** The popup-specific part of View_PopupWindow. */
struct View_Popup {
    int z; /**< stacking value among popups, the logic layer's choice; 2147483647 belongs to the
                dimming layer (a popup there only gets a warning), 2147483645 to the message box */
    U8 modal; /**< non-zero: modal, input below the popup is blocked */
    U8 movable; /**< non-zero: dragging the title bar moves the popup (View_SetDialogMoveControl changes it
                   later) */
    U8 hideTitle; /**< non-zero: no title bar */
    U8 buttons; /**< PopupTitleButton bits shown on the title bar */
    int titleHeight; /**< title bar height in pixels; <= 0 selects the default */
    Brush titleBrush; /**< title bar fill */
    const View_TextLayout* titleLayout; /**< title text placement; null centres it */
};

/** Bits of View_PopupWindow's last argument. */
enum PopupWindowFlag : int {
    POPUP_FLAG_KEYBOARD = 0x1 /**< keyboard window: its title bar carries a one-line entry (the keyboard
                                 window calls act on it) */
};

/** Input methods of View_GlobalConfig::inputMethod. */
enum ViewInputMethod : U32 {
    INPUT_METHOD_VIRTUAL_KEYBOARD = 0, /**< the on-screen keyboard pops up (default) */
    INPUT_METHOD_PHYSICAL_KEYBOARD = 1, /**< typing on a connected keyboard only */
    INPUT_METHOD_BOTH = 2 /**< both */
};

/** Process-wide behaviour settings (View_SetGlobalConfigue). Zero members keep the current value. */
struct View_GlobalConfig {
    U32 inputMethod; /**< ViewInputMethod; values above 2 are ignored */
    int scrollBarWidth; /**< scroll bar width in pixels (default 15) */
    int listRowLimit; /**< most rows a list control keeps (default 65535) */
    int textLengthLimit; /**< longest text in characters an input widget accepts (default 65535) */
    int doubleClickInterval; /**< ms between two presses that make a double click (default 200) */
    int pressDistance; /**< pixels a press may travel and still count as a click */
};

/** Default looks of the widgets (View_SetInterfaceConfigue). Zero members keep the current value. */
struct View_InterfaceConfigue {
    Pen defaultPen; /**< pen of borders and lines without their own; a zero colour and width keep the current
                       one */
    U32 defaultTextColor; /**< text colour word */
    U32 defaultBackColor; /**< background colour word */
    U32 selectionColor; /**< selection colour of input fields and lists */
    U32 highlightColor; /**< highlighted row / cell of lists and menus */
    const Font* defaultFont; /**< font of widgets without their own; null keeps the current one */
};

/** Kinds of View_ScreenShot request. */
enum ScreenShotMode : U32 {
    SCREENSHOT_GRAB = 0, /**< grab the panel or a window and write it to `path` */
    SCREENSHOT_LOAD = 1 /**< read the image file at `path` and hand its pixels over with EVT_SCREENSHOT */
};

/** A screenshot request (View_ScreenShot). The result comes with event EVT_SCREENSHOT. */
struct View_ScreenShotData {
    U32 mode; /**< ScreenShotMode */
    U32 windowId; /**< grab: 0 grabs the whole panel, otherwise the window or popup window with this id */
    Rect rect; /**< grab: the part to grab in the item's pixels; width or height <= 0 grabs all of it */
    const char*
        path; /**< file to write (grab) or read (load); the extension chooses the format (png, jpg, bmp) */
    int quality; /**< grab: 0..100 compression quality; 0 or less selects the format's default */
};

#endif /* QGUI_RECORDS_WINDOW_H */
