/*
 * qgui public interface: records of the PDF view, the camera, media player,
 * remote-desktop and web widgets, and of the FTP service.
 *
 * Widget records start with the common header (U32 header, Rect rect, U32 id),
 * see records_display.h. Where a widget cannot be made on a panel, a
 * placeholder takes its box.
 */
#ifndef QGUI_RECORDS_MISC_H
#define QGUI_RECORDS_MISC_H

#include "types.h"

/** Page display of the PDF view (View_PdfSetDisplayMode). */
enum PdfDisplayMode : int {
    PDF_SINGLE_PAGE = 0, /**< one page at a time, at the zoom; dragged when larger than the view */
    PDF_CONTINUOUS = 1, /**< pages one below the other at the zoom, scrolled by dragging */
    PDF_FIT_WIDTH = 2, /**< one page at a time, as wide as the view (the zoom is kept for later) */
    PDF_FIT_PAGE = 3 /**< one page at a time, wholly inside the view */
};

/** PDF view (View_CreatePdf). */
struct View_Pdf {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    const char* path; /**< document path, UTF-8; null or "" shows an empty view (View_PdfUpdateFile loads
                          one later). The file opens off the GUI thread; EVT_PDF_SOURCE reports how it went */
    int displayMode; /**< PdfDisplayMode; other numbers show a single page */
    U32 page; /**< first page shown, counted from 0; beyond the end, the last page */
    U32 zoom; /**< zoom in percent (100: the page at its printed size), kept within 10..800; 0 fits the
                   page width */
    U8 showToolBar; /**< non-zero: a bar along the bottom with previous/next page, the page number and
                         zoom out/in; it acts on the view only, the logic layer is not told */
};

/** Network camera (View_CreateCameraIP). */
struct View_CameraIP {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    const char* url; /**< stream address, for instance "rtsp://host:554/stream" */
    const char* user; /**< user name; null or "" for none */
    const char* password; /**< password; null or "" for none */
};

/** USB camera (View_CreateCameraUSB). */
struct View_CameraUSB {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    const char* device; /**< device name; null or "" selects the first camera */
    int frameWidth; /**< wanted capture width, pixels; <= 0 the camera's default */
    int frameHeight; /**< wanted capture height, pixels; <= 0 the camera's default */
};

/** Media player (View_CreateMediaPlayer). */
struct View_MediaPlayer {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    const char* path; /**< media file or address; null or "" for none */
    int volume; /**< 0..100 */
    U8 autoPlay; /**< non-zero: starts playing at creation */
    U8 loop; /**< non-zero: starts again at the end */
    U8 showControls; /**< non-zero: play, pause and position controls are shown */
};

/** Remote-desktop client (View_CreateVncClient); reports EVT_VNC_STATE. */
struct View_VncClient {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    const char* host; /**< server address; null or "" connects only on View_VncConnect */
    const char* password; /**< password; null or "" for none */
    U16 port; /**< server port; 0 selects 5900 */
    U8 viewOnly; /**< non-zero: input is not sent to the server */
    U8 scaled; /**< non-zero: the remote screen is scaled to the box */
};

/** Web browser (View_CreateWebBrowser). */
struct View_WebBrowser {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    const char* url; /**< start page; null or "" for an empty page */
    U8 showToolBar; /**< non-zero: address bar and navigation buttons are shown */
};

/** Settings of the panel's FTP server (Ftp_ConfigServer). */
struct FtpServerPrm {
    U8 enable; /**< non-zero runs the server, 0 stops it */
    U8 anonymous; /**< non-zero: anonymous logins are accepted (no password asked), kept inside rootPath */
    U8 readOnly; /**< non-zero: clients may not write; otherwise they write where the system's "ftp" account
                      may (anonymous) or where `user` may */
    U16 port; /**< listening port on every address of the panel; 0 selects 21 */
    U32 maxClients; /**< most simultaneous clients; 0 for no limit */
    const char* rootPath; /**< folder served, UTF-8; null or "" serves the project's storage folders ("disk/") */
    const char* user; /**< an account of the panel's system that may also log in (its own password, checked
                           by the system; never root), kept inside rootPath; null or "" for none */
    const char* password; /**< not used: an account logs in with its own password */
};

/** A connection of the FTP client (Ftp_Connect). */
struct FtpClientPrm {
    U8 client; /**< client number, the key of the other Ftp_ calls and the id of its events */
    U8 passive; /**< non-zero: passive mode (the client opens the data connections); 0: active mode */
    U16 port; /**< server port; 0 selects 21 */
    const char* host; /**< server address */
    const char* user; /**< user name; null or "" logs in anonymously */
    const char* password; /**< password; sent as given (quotes and blanks are fine; CR, LF refuse the connect) */
    int timeoutMs; /**< how long nothing may move (connection, answer, bytes), ms; <= 0 selects 15000 */
};

#endif /* QGUI_RECORDS_MISC_H */
