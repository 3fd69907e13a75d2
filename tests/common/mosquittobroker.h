#ifndef MOSQUITTOBROKER_H
#define MOSQUITTOBROKER_H

#include "serverprocess.h"

/**
 * A mosquitto broker on a free loopback port, logging everything (connects with their
 * keep-alive, disconnects, subscriptions) to a file. With credentials, only that user may connect.
 */
class MosquittoBroker : public ServerProcess {
public:
    explicit MosquittoBroker(const QString& user = QString(), const QString& password = QString());
    /** The broker's log so far (connects with client id and keep-alive, subscriptions). */
    QByteArray log() const;

protected:
    bool setUp() override;
    QString program() const override;
    QStringList arguments() const override;

private:
    QString m_user;
    QString m_password;
};

#endif // MOSQUITTOBROKER_H
