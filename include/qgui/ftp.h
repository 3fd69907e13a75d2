/*
 * qgui public interface: the FTP server and client service.
 *
 * Clients are numbered by the logic layer (FtpClientPrm::client). Each client
 * has a worker thread of its own: commands are queued and run one after the
 * other there, so no call blocks the GUI thread (Ftp_DisConnect with `wait`
 * excepted). The calls may come from any thread: from another thread than
 * the GUI thread a call is handed to the GUI thread and waits for its result
 * there (so never make one while the GUI thread waits for the calling thread).
 * Connection states and finished commands are reported with
 * EVT_FTP_STATE (int FtpState) and EVT_FTP_RESULT (View_EvtFtpResult), the
 * client number as id, on the GUI thread. Every accepted command ends with
 * exactly one EVT_FTP_RESULT, in the order the commands were given (removeClient
 * excepted, see there).
 *
 * Results of the calls: 0 accepted (or done), -1 refused with nothing queued:
 * unknown client, null or empty paths, a remote path or credential holding a
 * CR, LF or NUL (they would break the FTP command line), a put whose local file
 * cannot be read, a pull onto an existing local file without `overwrite`, a
 * transfer on a client that was disconnected (connect it again first).
 *
 * Remote paths are relative to the folder the server logs the user into; a
 * leading "/" makes them absolute on the server. Missing remote folders are
 * created by a put; missing local folders by a pull. A pull writes next to its
 * target ("<file>.part") and renames on success: a failed pull leaves an
 * existing local file as it was and no partial file behind.
 *
 * State rules: Ftp_Connect sends FTP_CONNECTING, then FTP_CONNECTED or
 * FTP_FAILED. A transfer that fails for the connection's sake (unreachable,
 * login, time-out, connection lost) sets FTP_FAILED; the next transfer
 * reconnects and a success sets FTP_CONNECTED again. Ftp_DisConnect sets
 * FTP_DISCONNECTED at once.
 *
 * Time-out (FtpClientPrm::timeoutMs, default 15000 ms): a command fails with
 * FTP_ERR_TIMEOUT when nothing moves for that long: no connection, no answer
 * from the server, or no byte transferred. A long transfer that keeps moving
 * is never cut.
 */
#ifndef QGUI_FTP_H
#define QGUI_FTP_H

#include "records_misc.h"
#include "types.h"

/**
 * Serves a folder of the panel over FTP with a server process of the system
 * (vsftpd), configured in a generated file under the project's "disk/tmp/"
 * folder and stopped when the application quits. enable 0 stops a running
 * server (0, also when none runs). Returns 0 when the server listens, -1 with a
 * log line when it cannot run (server program not installed, root folder
 * missing, port taken, user name or password with characters outside the
 * printable ASCII range). A second call reconfigures: the server restarts.
 */
QGUI_EXPORT int Ftp_ConfigServer(const FtpServerPrm& prm);

/**
 * Creates client prm.client if needed and starts connecting (log-in included);
 * the outcome comes with EVT_FTP_STATE and an EVT_FTP_RESULT of FTP_CMD_CONNECT.
 * Connecting a client that already exists first ends its commands (each
 * reported FTP_ERR_CANCELLED) and then connects with the new settings.
 * -1: host null or empty, credentials holding CR, LF or NUL.
 */
QGUI_EXPORT int Ftp_Connect(const FtpClientPrm& prm);

/** Current FtpState of a client; -1 for an unknown client. */
QGUI_EXPORT int Ftp_CheckState(unsigned char client);

/**
 * Disconnects a client: its running command ends, queued ones are dropped
 * (each reported FTP_ERR_CANCELLED), FTP_DISCONNECTED is sent and an
 * EVT_FTP_RESULT of FTP_CMD_DISCONNECT follows once the connection is closed.
 * With `wait` the call returns only when the connection is closed (at most
 * the client's time-out plus a second); the events still come from the event
 * loop. -1 for an unknown client.
 */
QGUI_EXPORT int Ftp_DisConnect(unsigned char client, bool wait);

/** Uploads the local file to the remote path; with `overwrite` an existing remote file is replaced, without it
 * the put ends with FTP_ERR_EXISTS when the remote file exists. Ends with EVT_FTP_RESULT. */
QGUI_EXPORT int Ftp_Put(unsigned char client, const char* localPath, const char* remotePath, bool overwrite);

/** Downloads the remote file to the local path; with `overwrite` an existing local file is replaced. Ends
 * with EVT_FTP_RESULT. */
QGUI_EXPORT int Ftp_Pull(unsigned char client, const char* localPath, const char* remotePath, bool overwrite);

/**
 * Progress of the client's transfer, for a progress bar driven by the logic
 * layer's cycle: bytes moved so far and the file's size (0 while unknown).
 * Returns 1 from the moment Ftp_Put or Ftp_Pull accepts a transfer until it
 * has ended (a queued transfer counts, with the figures of the one before until
 * it starts), 0 when none is queued or runs (the figures are then those of the
 * last transfer), -1 for an unknown client. Either pointer may be null.
 */
QGUI_EXPORT int Ftp_TransferProgress(unsigned char client, long long* done, long long* total);

/** Disconnects and forgets a client: results of commands already done are sent during the call, then no
 * event of it follows (a running or queued command ends unanswered). -1 for an unknown client. */
QGUI_EXPORT int removeClient(unsigned char client);

#endif /* QGUI_FTP_H */
