// The way to a shared store: a database of a PostgreSQL server, or an SQLite file with the same
// tables for one machine and for tests.
#pragma once

#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include <functional>
#include <memory>
#include <optional>

namespace store {

// "postgresql://user@host:5432/database?sslmode=require" as libpq takes it, "sqlite:/path/file".
struct address
{
    bool isServer = false;
    QString host; // also the folder of a socket
    int port = -1;
    QString user;
    QString database; // the file of SQLite
    QString options;  // as the driver takes them

    // Nothing, with the reason in fault, for another form, an unknown option, and for one with a
    // password: that would stand in the configuration for everybody to read.
    static std::optional<address> parse(const QString &text, QString *fault);
    // For the user.
    QString shown() const;
};

class connection
{
public:
    connection();
    ~connection();
    connection(const connection &) = delete;
    connection &operator=(const connection &) = delete;

    // Without a password libpq looks for one in ~/.pgpass and in PGPASSWORD. False with fault()
    // when the server is not reached, or refuses.
    bool open(const address &to, const QString &password = {});
    void close();
    bool isOpen() const;
    // Whether the server refused because a password is missing or wrong.
    bool wantsPassword() const { return m_wantsPassword; }
    bool isServer() const { return m_isServer; }
    // Of what failed last, plain text.
    const QString &fault() const { return m_fault; }

    // Run a statement whose values stand for its question marks, and is prepared once. False or
    // nothing, with fault(), when it is refused.
    bool run(const QString &sql, const QVariantList &values = {});
    std::optional<QSqlQuery> ask(const QString &sql, const QVariantList &values = {});
    // The first value of the first row; invalid when there is none.
    QVariant askOne(const QString &sql, const QVariantList &values = {});
    int affected() const { return m_affected; } // rows of the last run()

    // What is done while others write, some times a second; false gives up waiting. Without it the
    // server is waited for in one piece.
    void setWaiting(std::function<bool()> waiting) { m_waiting = std::move(waiting); }
    // Writing: nobody else writes until it ends. Reading: all questions are answered as of now.
    bool begin(bool forWriting);
    // Whether the last begin() failed because waiting was given up.
    bool wasGivenUp() const { return m_gaveUp; }
    bool commit();
    void rollback();

    QSqlDatabase database() const;

private:
    std::optional<QSqlQuery> ask(const QString &sql, const QVariantList &values, bool isOnce);
    void note(const QSqlError &error);

    QString m_name;
    bool m_isServer = false;
    bool m_wantsPassword = false;
    bool m_inside = false; // a transaction
    bool m_gaveUp = false; // waiting for others
    int m_affected = 0;
    bool beginWaiting();

    QString m_fault;
    QString m_code; // of the server's error
    std::function<bool()> m_waiting;
    QHash<QString, QSqlQuery> m_prepared;
};

// A name as SQL takes it whatever stands in it.
QString quoted(const QString &name);

// Makes the tables where they are missing; on a server also the schema and the roles
// "kivzp_reader", "kivzp_editor" and "kivzp_administrator" with what each may do. False with the
// connection's fault.
bool makeTables(connection &to);

// The store's id; empty, with the reason in fault, when it has no tables yet or those of another
// version.
QString idOf(connection &to, QString *fault);

// Whether changes may be sent.
bool mayWrite(connection &to);

} // namespace store
