#ifndef PYFTPSERVER_H
#define PYFTPSERVER_H

#include "serverprocess.h"

/**
 * An FTP server for tests (Debian's Python FTP server library) on a free
 * loopback port, serving dir() + "/root": one user with full rights and
 * anonymous logins that may only read. With a rate limit, data connections
 * move at most that many bytes per second (for transfers that last long
 * enough to be cut).
 */
class PyFtpServer : public ServerProcess {
public:
    PyFtpServer(const QByteArray& user, const QByteArray& password, int bytesPerSecond = 0);
    /** The folder served. */
    QString root() const { return dir() + QStringLiteral("/root"); }

protected:
    bool setUp() override;
    QString program() const override;
    QStringList arguments() const override;

private:
    QByteArray m_user;
    QByteArray m_password;
    int m_rate;
};

#endif // PYFTPSERVER_H
