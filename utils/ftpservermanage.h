#ifndef FTPSERVERMANAGE_H
#define FTPSERVERMANAGE_H

#include <QObject>
#include <QString>

class QProcess;

/**
 * The panel's FTP server (Ftp_ConfigServer): a vsftpd process of the system,
 * configured by a file this class writes under the project's temporary folder
 * ("disk/tmp/ftpd/vsftpd.conf"), started in the foreground as a child of the
 * panel and stopped when the application quits or the server is disabled.
 *
 * Logins: anonymous (no password asked) when allowed, served from the root
 * folder, which they cannot leave; logins with a user name are those of the
 * system's accounts (checked by the system, root never), and land in the same
 * root folder. The server program is looked up as "vsftpd" in the PATH and in
 * /usr/sbin; the environment variable QGUI_FTPD_PROGRAM names another one.
 */
class FtpServerManage : public QObject {
    Q_OBJECT

public:
    struct Settings {
        bool anonymous = true;
        bool readOnly = true;
        quint16 port = 21;
        unsigned maxClients = 0; ///< 0: no limit
        QString rootPath; ///< absolute folder served
        QString user; ///< a system account allowed to log in; empty: none
    };

    static FtpServerManage* getInstance();

    /** Starts (or restarts with new settings) the server; 0 once it listens, -1 with a log line otherwise. */
    int start(const Settings& settings);
    /** Stops a running server; 0 also when none runs. */
    int stop();
    bool isRunning() const;
    /** The configuration file of the running (or last) server. */
    QString configPath() const { return m_configPath; }

    /** The server program, or "" when it is not installed. */
    static QString program();

private:
    explicit FtpServerManage(QObject* parent = nullptr);
    QByteArray config(const Settings& s, const QString& emptyDir) const;
    bool waitListening(quint16 port, int ms);

    QProcess* m_process = nullptr;
    QString m_configPath;
};

#endif // FTPSERVERMANAGE_H
