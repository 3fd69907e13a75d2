#ifndef PGSERVER_H
#define PGSERVER_H

#include "serverprocess.h"

/**
 * A PostgreSQL server of the system's packages, in a temporary cluster on loopback.
 * The server refuses to run as root: under root it runs as the "postgres" system user,
 * which then owns the temporary folder. Login: user "postgres", no password, database
 * "postgres".
 */
class PgServer : public ServerProcess {
public:
    PgServer();
    static QString binDir();

protected:
    bool setUp() override;
    QString program() const override;
    QStringList arguments() const override;
    QString runAsUser() const override;
    bool ready() override;
};

#endif // PGSERVER_H
