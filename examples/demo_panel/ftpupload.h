#ifndef FTPUPLOAD_H
#define FTPUPLOAD_H

#include <qgui/qgui.h>

/**
 * The demo's FTP: the panel serves its storage folders with its own FTP server
 * (port 2121, anonymous, uploads into "hmi/ftp-in"), and the demo's FTP client
 * uploads the file the operator picks in the file dialog (the exported alarm
 * list) to it. A line on the process screen shows the connection and the
 * upload as the events report them; without a server program (or without
 * root) it says so and nothing is sent.
 */
namespace FtpUpload {

/** Starts the panel's FTP server and connects the demo's client to it. */
void start();
/** The status line on window \a windowId. */
void build(unsigned windowId);
/** Handles the chosen file (event 770) and the FTP events; false when the event is not theirs. */
bool onEvent(unsigned id, int code, void* data);

} // namespace FtpUpload

#endif
