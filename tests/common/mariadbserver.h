#ifndef MARIADBSERVER_H
#define MARIADBSERVER_H

#include "serverprocess.h"

/**
 * A MariaDB server of the system's packages, in a temporary data folder on loopback,
 * with grant tables skipped (any user, no password) and the database "qgui" created.
 */
class MariaDbServer : public ServerProcess {
public:
    MariaDbServer();

protected:
    bool setUp() override;
    QString program() const override;
    QStringList arguments() const override;
    bool ready() override;
};

#endif // MARIADBSERVER_H
