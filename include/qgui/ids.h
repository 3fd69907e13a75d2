/*
 * qgui public interface: identifier, option, encoding and storage helpers.
 *
 * A window id carries its desktop number in the high 16 bits and the number of
 * the window inside that desktop in the low 16 bits. Widget id 0 means "no
 * widget" (panel-wide events).
 */
#ifndef QGUI_IDS_H
#define QGUI_IDS_H

#include "types.h"

/** String encodings of View_CvtEncode and View_CvtEncode2. */
enum StrEncode : int {
    STR_ENCODE_GB2312 = 0, /**< "GB2312" */
    STR_ENCODE_UTF16LE = 1, /**< "UTF-16LE" */
    STR_ENCODE_UTF8 = 2, /**< "UTF-8" */
    STR_ENCODE_LATIN1 = 3 /**< "ISO-8859-1" */
};

/** Storage numbers of getStorePath. */
enum StoreNo : unsigned {
    STORE_TMP = 0, /**< "disk/tmp/", emptied at every start */
    STORE_HMI = 1, /**< "disk/hmi/" */
    STORE_SD = 2, /**< "disk/sd/" */
    STORE_USB1 = 3, /**< "disk/usb1/" */
    STORE_USB2 = 4 /**< "disk/usb2/" */
};

extern "C" {

/** Desktop number of a window id: wndId >> 16. */
QGUI_EXPORT unsigned int GetDeskNoFromWndId(unsigned int wndId);

/** Kind of an option word: its low two bits (0..3). */
QGUI_EXPORT unsigned int GetTypeOfOption(unsigned int option);

/** True for the known encodings 0..3 (StrEncode), false for every other code, negative ones included. */
QGUI_EXPORT bool IsValidStrEncode(int code);

/** Relative folder of a storage number (StoreNo), ending with '/'; "" for any other number. Never null. */
QGUI_EXPORT const char* getStorePath(unsigned int storeNo);

} /* extern "C" */

#endif /* QGUI_IDS_H */
