#ifndef FTPCLIENTMANAGE_H
#define FTPCLIENTMANAGE_H

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>

class QNetworkAccessManager;
class QNetworkReply;

/**
 * FTP clients by number, on Qt's network access (ftp:// URLs). Ftp_Connect
 * checks the server by listing its root and reports the state (event 2049)
 * and the result (event 2050); Ftp_Put and Ftp_Pull transfer one file each and
 * report their result. Running a server on the panel is not offered
 * (Ftp_ConfigServer answers -1). Events are sent on the GUI thread.
 */
class FtpClientManage : public QObject {
    Q_OBJECT

public:
    static FtpClientManage* getInstance();

    struct Client {
        QString host;
        quint16 port = 21;
        QString user;
        QString password;
        int timeoutMs = 15000;
        int state = 0; // FtpState
    };

    int connectClient(unsigned char client, const Client& prm);
    int state(unsigned char client) const;
    int disconnectClient(unsigned char client);
    int put(unsigned char client, const QString& local, const QString& remote, bool overwrite);
    int pull(unsigned char client, const QString& local, const QString& remote, bool overwrite);
    int removeClient(unsigned char client);

private:
    explicit FtpClientManage(QObject* parent = nullptr);
    QUrl url(const Client& c, const QString& remote) const;
    void setState(unsigned char client, int state);
    void finish(unsigned char client, int command, int error, const QString& local, const QString& remote);
    void watch(QNetworkReply* reply, int timeoutMs);

    QNetworkAccessManager* m_nam;
    QHash<unsigned char, Client> m_clients;
};

#endif // FTPCLIENTMANAGE_H
