/*
 * qgui public interface: the FTP server and client service.
 *
 * Clients are numbered by the logic layer (FtpClientPrm::client). Connection
 * states and finished commands are reported with EVT_FTP_STATE and
 * EVT_FTP_RESULT, the client number as id. Results: 0 done or accepted,
 * -1 refused (unknown client, bad parameters, service unavailable).
 */
#ifndef QGUI_FTP_H
#define QGUI_FTP_H

#include "records_misc.h"
#include "types.h"

/** Starts, reconfigures or (enable 0) stops the panel's FTP server. */
QGUI_EXPORT int Ftp_ConfigServer(const FtpServerPrm& prm);

/** Creates client prm.client if needed and starts connecting; the outcome comes with EVT_FTP_STATE. */
QGUI_EXPORT int Ftp_Connect(const FtpClientPrm& prm);

/** Current FtpState of a client; -1 for an unknown client. */
QGUI_EXPORT int Ftp_CheckState(unsigned char client);

/** Disconnects a client; with `wait` the call returns only when the connection is closed. */
QGUI_EXPORT int Ftp_DisConnect(unsigned char client, bool wait);

/** Uploads the local file to the remote path; with `overwrite` an existing remote file is replaced. Ends with
 * EVT_FTP_RESULT. */
QGUI_EXPORT int Ftp_Put(unsigned char client, const char* localPath, const char* remotePath, bool overwrite);

/** Downloads the remote file to the local path; with `overwrite` an existing local file is replaced. Ends
 * with EVT_FTP_RESULT. */
QGUI_EXPORT int Ftp_Pull(unsigned char client, const char* localPath, const char* remotePath, bool overwrite);

/** Disconnects and forgets a client. */
QGUI_EXPORT int removeClient(unsigned char client);

#endif /* QGUI_FTP_H */
