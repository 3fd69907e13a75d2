#ifndef FTPCLIENTMANAGE_H
#define FTPCLIENTMANAGE_H

#include "utils/ftpclient.h"

#include <QObject>
#include <QString>

#include <map>
#include <memory>

/**
 * The panel's FTP clients by number (the Ftp_ calls). Each client is an
 * FtpClient with its own worker thread; this class keeps the connection state
 * the logic layer sees and sends events 2049 (state) and 2050 (result) on the
 * GUI thread. Every accepted command is answered once: by its client's worker,
 * or here as cancelled when a disconnect, a new connect or removeClient takes
 * it back.
 */
class FtpClientManage : public QObject {
    Q_OBJECT

public:
    static FtpClientManage* getInstance();
    ~FtpClientManage() override;

    int connectClient(unsigned char client, const FtpClient::Settings& prm);
    int state(unsigned char client) const;
    int disconnectClient(unsigned char client, bool wait);
    int put(unsigned char client, const QString& local, const QString& remote, bool overwrite);
    int pull(unsigned char client, const QString& local, const QString& remote, bool overwrite);
    int progress(unsigned char client, qint64* done, qint64* total) const;
    int removeClient(unsigned char client);
    /** Ends every client (at quit); no event follows. */
    void removeAll();

    /** False when \a text cannot go on an FTP command line (CR, LF or NUL in it). */
    static bool isCommandSafe(const QByteArray& text);

private:
    struct Entry {
        std::unique_ptr<FtpClient> client;
        int state = 0; // FtpState
    };

    explicit FtpClientManage(QObject* parent = nullptr);
    void setState(unsigned char client, int state);
    void finish(unsigned char client, int command, int error, const QString& local, const QString& remote);
    void answerCancelled(unsigned char client, const std::deque<FtpClient::Job>& taken);
    void retire(std::unique_ptr<FtpClient> client, bool silent);
    void deliverFinished(FtpClient* c);
    int submit(unsigned char client, int command, const QString& local, const QString& remote, bool overwrite);

    std::map<unsigned char, Entry> m_clients;
};

#endif // FTPCLIENTMANAGE_H
