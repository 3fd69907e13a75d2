/*
 * qgui public interface: basic types shared by every family.
 *
 * Records here are plain C++ aggregates without Qt types. The logic layer owns
 * every record it passes in; the GUI copies what it keeps before the call
 * returns. Zero-initialised records are always valid and mean "defaults".
 */
#ifndef QGUI_TYPES_H
#define QGUI_TYPES_H

#include <cstdint>

#if defined(_WIN32)
#define QGUI_EXPORT __declspec(dllexport)
#else
#define QGUI_EXPORT __attribute__((visibility("default")))
#endif

typedef unsigned int U32;
typedef unsigned short U16;
typedef unsigned char U8;

/** Result of the logic layer's event call-back; 0 is "handled". Not interpreted by the GUI. */
typedef int ErrRet;

/** Rectangle in panel pixels. */
struct Rect {
    int x; /**< left edge; INT_MIN counts as INT_MIN + 1 */
    int y; /**< top edge; as the left edge */
    int width; /**< width; negative sizes are treated as 0, and a box reaching past INT_MAX ends there */
    int height; /**< height; as the width */
};

/** Size of a desktop, in pixels. */
struct Size {
    int width; /**< panel width */
    int height; /**< panel height */
};

/** Point in pixels (shape vertices, pointer positions). */
struct Point {
    int x; /**< horizontal position, pixels */
    int y; /**< vertical position, pixels */
};

/** Point of an XY curve. */
struct FPoint {
    double x; /**< horizontal value */
    double y; /**< vertical value */
};

/*
 * Colour words: one unsigned 32-bit value 0xAARRGGBB. Alpha 0xFF is opaque.
 * Opacity (header) words: the low byte is the transparency in percent
 * (0 = opaque, 100 = invisible, larger values count as 100); byte 2 bit 0 is
 * the drag-window flag of buttons; the other bits are reserved.
 * Alignment words use these bits (they can be or-ed, one horizontal and one vertical):
 */
enum QGuiAlign : unsigned {
    QGUI_ALIGN_LEFT = 0x01,
    QGUI_ALIGN_RIGHT = 0x02,
    QGUI_ALIGN_HCENTER = 0x04,
    QGUI_ALIGN_JUSTIFY = 0x08,
    QGUI_ALIGN_TOP = 0x20,
    QGUI_ALIGN_BOTTOM = 0x40,
    QGUI_ALIGN_VCENTER = 0x80,
    QGUI_ALIGN_HMASK = 0x1F, /**< horizontal bits */
    QGUI_ALIGN_VMASK = 0x1E0 /**< vertical bits */
};

/** Font of a text. */
struct Font {
    const char* family; /**< family name, UTF-8; null or "" selects the default font */
    int pixelSize; /**< size in pixels; <= 0 selects the default size, clamped to 1..1024 */
    int weight; /**< 0..1000 CSS-like weight (400 normal, 700 bold); 0 = normal */
    U8 italic; /**< non-zero: italic */
    U8 underline; /**< non-zero: underlined */
    U8 strikeout; /**< non-zero: struck out */
    U8 lineSpace; /**< extra spacing between lines, pixels */
    U32 color; /**< text colour word 0xAARRGGBB */
    U32 align; /**< font alignment: alignment of the lines inside the text block (QGuiAlign bits) */
};

/** Brush styles of a Brush record. Unknown values are drawn as SOLID. */
enum BrushStyle : unsigned {
    BRUSH_NONE = 0, /**< nothing is filled */
    BRUSH_SOLID = 1, /**< color */
    BRUSH_LINEAR = 2, /**< linear gradient color -> color2 along angle */
    BRUSH_RADIAL = 3 /**< radial gradient color (centre) -> color2 (edge) */
};

/** Fill of an area or a text. */
struct Brush {
    U32 style; /**< BrushStyle */
    U32 color; /**< first colour word */
    U32 color2; /**< second colour word (gradients) */
    int angle; /**< gradient direction in degrees, 0 = left to right, 90 = top to bottom */
};

/** Line styles of a Pen record; values follow the usual solid/dash/dot set. Unknown values draw solid. */
enum PenStyle : unsigned {
    PEN_NONE = 0,
    PEN_SOLID = 1,
    PEN_DASH = 2,
    PEN_DOT = 3,
    PEN_DASHDOT = 4,
    PEN_DASHDOTDOT = 5
};

/** Outline of a shape or border. */
struct Pen {
    U32 color; /**< colour word */
    int width; /**< width in pixels; <= 0 draws a cosmetic 1-pixel line */
    U32 style; /**< PenStyle */
};

/** Text placement inside a text or button box. */
struct View_TextLayout {
    U32 align; /**< alignment of the text block in its box (QGuiAlign bits) */
    short hMargin; /**< distance from a left/right aligned edge, pixels */
    short vMargin; /**< distance from a top/bottom aligned edge, pixels */
};

/** Which part of a widget View_ShowWidget / View_HideWidget acts on. Any int is a valid value;
 *  values other than 1 and 2 act on the whole item. */
enum ItemSlashType : int {
    ITEM_SLASH_WHOLE = 0, /**< the whole item */
    ITEM_SLASH_IMAGE = 1, /**< the item's image only */
    ITEM_SLASH_SLASH = 2 /**< the item's slash overlay only */
};

/** The logic layer's event call-back: (widget id, event code, payload or null). */
typedef ErrRet (*ViewEventCallBack)(unsigned id, int event, void* data);
/** Device initialisation: (device number, path a UTF-8, path b UTF-8, option words[3]); non-zero = failure.
 */
typedef int (*ViewDeviceInitCallBack)(unsigned deviceNo, const char* a, const char* b, const unsigned* words);
/** Start notification, called once at the start of GuiApplication::init. */
typedef int (*ViewStartCallBack)();
/** Not called by this library. */
typedef int (*ViewReservedCallBack)();
/** Cyclic work every 10 ms. */
typedef void (*ViewCycle10CallBack)();
/** Cyclic work every 100 ms, called with 0, right after the 10 ms work of the same tick. */
typedef void (*ViewCycle100CallBack)(int);
/** Curve axis label: (value, buffer, buffer size, format word) fills buffer with NUL-terminated UTF-8. */
typedef int (*ViewLabelFormatCallBack)(double value, char* buffer, unsigned size, unsigned format);
/** One-argument conversion used by the curves (a raw time value to seconds since the epoch). */
typedef double (*ViewConvertCallBack)(double);

/** The eight call-backs of the logic layer, in slot order. Any slot may be null. */
struct _Main_CallBacks {
    ViewEventCallBack event; /**< slot 0: events */
    ViewDeviceInitCallBack deviceInit; /**< slot 1: device initialisation */
    ViewStartCallBack start; /**< slot 2: start notification */
    ViewReservedCallBack reserved; /**< slot 3: unused */
    ViewCycle10CallBack cycle10ms; /**< slot 4: every 10 ms */
    ViewCycle100CallBack cycle100ms; /**< slot 5: every 100 ms */
    ViewLabelFormatCallBack labelFormat; /**< slot 6: curve axis labels */
    ViewConvertCallBack convert; /**< slot 7: curve value conversion */
};

#endif /* QGUI_TYPES_H */
