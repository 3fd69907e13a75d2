/*
 * qgui public interface: records of the input fields, the clock field and the
 * Pinyin candidate bar; keyboard layout types and validator kinds.
 *
 * Widget records start with the common header (U32 header, Rect rect, U32 id),
 * see records_display.h.
 */
#ifndef QGUI_RECORDS_INPUT_H
#define QGUI_RECORDS_INPUT_H

#include "types.h"

/** Bits of View_Input::flags. */
enum InputFlag : U32 {
    INPUT_MULTILINE
    = 0x1 /**< View_CreateInputText makes a multi-line field; without it a single-line field */
};

/** Text or numeric input field (View_CreateInputText, View_CreateNumInputText, View_ChangeInputParam). */
struct View_Input {
    U32 header; /**< opacity word */
    Rect rect; /**< field box */
    U32 id; /**< widget id */
    const char* image; /**< background image path; null or "" for none */
    const char* text; /**< text shown; null is empty */
    const Font* font; /**< font, colour, font alignment (multi-line: its line spacing too) */
    const View_TextLayout* layout; /**< alignment of the text in the field; single-line: also its margins;
                                      null: left, vertically centred */
    U32 flags; /**< InputFlag bits */
    int paddingLeft; /**< multi-line: inner padding, pixels */
    int paddingTop; /**< multi-line: inner padding, pixels */
    int paddingRight; /**< multi-line: inner padding, pixels */
    int paddingBottom; /**< multi-line: inner padding, pixels */
    int lineNumber; /**< multi-line: line number value stored on the text item */
    int totalLine; /**< multi-line: total-line value stored on the text item */
    const char* slashText; /**< text shown in the slash state (for instance "****"); null is empty */
};

/** Clock field showing a date/time text (View_CreateInputClock); edited through View_PopupDateTimeDialog. */
struct View_InputClock {
    U32 header; /**< opacity word */
    Rect rect; /**< field box */
    U32 id; /**< widget id */
    const char* image; /**< background image path; null or "" for none */
    const char* text; /**< text shown, normally "yyyy-MM-dd hh:mm:ss" */
    const Font* font; /**< font, colour and horizontal alignment of the text */
    int rowSpace; /**< line height of the text, pixels; <= 0 selects the font's */
};

/** Pinyin candidate bar (View_ShowKeyBoardWidget). */
struct View_keyBoardData {
    Rect rect; /**< position on the panel; width or height <= 0: the bar sizes itself to its content */
    const char*
        candidates; /**< candidate words separated by single spaces (two spaces give an empty candidate) */
    const Font* font; /**< candidate font and colour; null selects the default */
    U32 backColor; /**< bar background colour word */
    U32 selectColor; /**< colour word of the pressed candidate */
};

/** Keyboard layout requested with View_PopupVirtualKeyboard. Other values behave as VKB_TEXT. */
enum VkbLayoutType : int {
    VKB_DECIMAL = 0, /**< decimal number, signed 64-bit range */
    VKB_HEX = 1, /**< hexadecimal number, signed 64-bit range */
    VKB_DATETIME = 2, /**< date and time, mask "9999-99-99 99:99:99" */
    VKB_DATE = 3, /**< date, mask "9999-99-99" */
    VKB_TIME = 4, /**< time, mask "99:99:99" */
    VKB_TEXT = 5, /**< free text, no predictive text */
    VKB_TEXT_PREDICTIVE = 6 /**< free text with predictive text */
};

/** Validator kinds of the keyboard's entry line. */
enum TextValidator : int {
    VALIDATOR_KEEP = 0, /**< the current validator is kept */
    VALIDATOR_NONE = 1, /**< no validator */
    VALIDATOR_BOOL = 2, /**< decimal 0..1 */
    VALIDATOR_INT8 = 3, /**< decimal -128..127 */
    VALIDATOR_UINT8 = 4, /**< decimal 0..255 */
    VALIDATOR_INT16 = 5, /**< decimal -32768..32767 */
    VALIDATOR_UINT16 = 6, /**< decimal 0..65535 */
    VALIDATOR_INT32 = 7, /**< decimal -2147483648..2147483647 */
    VALIDATOR_UINT32 = 8, /**< decimal 0..4294967295 */
    VALIDATOR_INT64 = 9, /**< decimal, signed 64-bit */
    VALIDATOR_UINT64 = 10, /**< decimal, unsigned 64-bit */
    VALIDATOR_HEX_INT8 = 11, /**< hexadecimal -128..127 */
    VALIDATOR_HEX_UINT8 = 12, /**< hexadecimal 0..255 */
    VALIDATOR_HEX_INT16 = 13, /**< hexadecimal -32768..32767 */
    VALIDATOR_HEX_UINT16 = 14, /**< hexadecimal 0..65535 */
    VALIDATOR_HEX_INT32 = 15, /**< hexadecimal -2147483648..2147483647 */
    VALIDATOR_HEX_UINT32 = 16, /**< hexadecimal 0..4294967295 */
    VALIDATOR_HEX_INT64 = 17, /**< hexadecimal, signed 64-bit */
    VALIDATOR_HEX_UINT64 = 18, /**< hexadecimal, unsigned 64-bit */
    VALIDATOR_FLOAT = 19, /**< floating-point number */
    VALIDATOR_DOUBLE = 20, /**< floating-point number (used for float and double columns) */
    VALIDATOR_DATETIME = 21, /**< "yyyy-MM-dd hh:mm:ss" with a valid calendar date */
    VALIDATOR_DATE = 22, /**< "yyyy-MM-dd" with a valid calendar date */
    VALIDATOR_TIME = 23 /**< "hh:mm:ss" */
};

#endif /* QGUI_RECORDS_INPUT_H */
