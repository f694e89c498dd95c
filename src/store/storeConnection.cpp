#include "store/storeConnection.h"

#include "store/storeBase.h"
#include "store/storeTables.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QThread>
#include <QUrl>
#include <QUrlQuery>

#include <atomic>

namespace store {

namespace {

constexpr int version = 1;
const QLatin1String schema("kivzp");

// What an address may say more, of what libpq knows.
const QStringList &knownOptions()
{
    static const QStringList all{
        QStringLiteral("sslmode"),        QStringLiteral("sslrootcert"),
        QStringLiteral("sslcert"),        QStringLiteral("sslkey"),
        QStringLiteral("sslcrl"),         QStringLiteral("connect_timeout"),
        QStringLiteral("host"),           QStringLiteral("hostaddr"),
        QStringLiteral("krbsrvname"),     QStringLiteral("target_session_attrs"),
        QStringLiteral("channel_binding")};
    return all;
}

QString optionText(const QString &value)
{
    QString escaped = value;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
        .replace(QLatin1Char('\''), QLatin1String("\\'"));
    return QLatin1Char('\'') + escaped + QLatin1Char('\'');
}

std::optional<address> parseServer(const QUrl &url, QString *fault)
{
    address read;
    read.isServer = true;
    read.host = url.host();
    read.port = url.port();
    read.user = url.userName();
    read.database = url.path().mid(1);
    QStringList options;
    bool hasTimeout = false;
    for (const auto &[name, value] : QUrlQuery(url).queryItems(QUrl::FullyDecoded)) {
        // The driver parts its options at semicolons.
        if (!knownOptions().contains(name) || value.contains(QLatin1Char(';'))) {
            *fault = QCoreApplication::translate("store", "\"%1\" is no option of an address "
                                                          "that is known here")
                         .arg(name);
            return {};
        }
        hasTimeout = hasTimeout || name == QLatin1String("connect_timeout");
        if (name == QLatin1String("host"))
            read.host = value;
        else
            options.append(name + QLatin1Char('=') + optionText(value));
    }
    // Who is offline is to know it soon.
    if (!hasTimeout)
        options.append(QStringLiteral("connect_timeout=5"));
    read.options = options.join(QLatin1Char(';'));
    return read;
}

QStringList statements(bool isServer)
{
    const QString number = isServer
                               ? QStringLiteral("bigint generated always as identity primary key")
                               : QStringLiteral("integer primary key");
    const QString now =
        isServer
            ? QStringLiteral("to_char(now() at time zone 'utc', 'YYYY-MM-DD\"T\"HH24:MI:SS\"Z\"')")
            : QStringLiteral("(strftime('%Y-%m-%dT%H:%M:%SZ', 'now'))");
    QStringList all{
        QStringLiteral("create table if not exists about (version integer not null, id text not "
                       "null, release bigint not null)"),
        QStringLiteral("create table if not exists document (id text primary key, kind text not "
                       "null, name text not null, release bigint not null, unique (kind, name))"),
        QStringLiteral("create table if not exists release (number bigint primary key, author text "
                       "not null, login text not null default %1, program text not null, at text "
                       "not null default %2)")
            .arg(isServer ? QStringLiteral("session_user") : QStringLiteral("''"), now),
        // what: "added", "removed", "changed" or "moved"; based_on: the row's release that the
        // change was made to.
        QStringLiteral("create table if not exists change (number %1, release bigint not null, "
                       "document text not null, row_table text not null, row_id text not null, "
                       "what text not null, field text not null default '', before text, after "
                       "text, based_on bigint not null)")
            .arg(number),
        QStringLiteral("create index if not exists change_row on change (row_id, release)"),
        QStringLiteral("create index if not exists change_release on change (release)")};
    for (const fileKind *kind : sharedKinds())
        for (const auto &of : tablesOf(*kind)) {
            QString columns;
            for (const column &one : of->columns)
                columns += QStringLiteral(", %1 text not null default ''").arg(quoted(one.name));
            all.append(QStringLiteral("create table if not exists %1 (row_id text primary key, "
                                      "row_document text not null, row_release bigint not null, "
                                      "row_gone smallint not null default 0, row_below text not "
                                      "null default '', row_place double precision not null%2)")
                           .arg(quoted(of->name), columns));
            all.append(QStringLiteral("create index if not exists %1 on %2 (row_document, "
                                      "row_release)")
                           .arg(quoted(of->name + QLatin1String("_release")), quoted(of->name)));
        }
    all.append(QStringLiteral("create index if not exists material_ktm on material (d_ktm)"));
    return all;
}

// Nobody may change the history, and who wrote it is the server's to say.
QStringList grants()
{
    QStringList all;
    for (const char *role : {"kivzp_reader", "kivzp_editor", "kivzp_administrator"})
        all.append(QStringLiteral("do $$ begin if not exists (select from pg_roles where rolname = "
                                  "'%1') then create role %1 nologin; end if; end $$")
                       .arg(QLatin1String(role)));
    all << QStringLiteral("grant kivzp_reader to kivzp_editor")
        << QStringLiteral("grant kivzp_editor to kivzp_administrator")
        << QStringLiteral("grant usage on schema kivzp to kivzp_reader")
        << QStringLiteral("grant select on all tables in schema kivzp to kivzp_reader")
        << QStringLiteral("grant update (release) on about to kivzp_editor")
        << QStringLiteral("grant insert (number, author, program) on release to kivzp_editor")
        << QStringLiteral("grant insert (release, document, row_table, row_id, what, field, "
                          "before, after, based_on) on change to kivzp_editor")
        << QStringLiteral("grant insert on document to kivzp_editor")
        << QStringLiteral("grant delete on document to kivzp_administrator")
        // The CAD tool's library is a schema of its own.
        << QStringLiteral("do $$ begin execute format('grant create on database %I to "
                          "kivzp_administrator', current_database()); end $$");
    for (const fileKind *kind : sharedKinds())
        for (const auto &of : tablesOf(*kind))
            all.append(
                QStringLiteral("grant insert, update on %1 to kivzp_editor").arg(quoted(of->name)));
    return all;
}

} // namespace

// --- Address
// --------------------------------------------------------------------------------------

std::optional<address> address::parse(const QString &text, QString *fault)
{
    const QLatin1String file("sqlite:");
    if (text.startsWith(file)) {
        address read;
        read.database = text.mid(file.size());
        while (read.database.startsWith(QLatin1String("//")))
            read.database.remove(0, 1);
        if (!read.database.isEmpty())
            return read;
    }
    const QUrl url(text, QUrl::StrictMode);
    if (!url.password().isEmpty()) {
        *fault = QCoreApplication::translate(
            "store", "the address holds a password: leave it out, and it is asked for");
        return {};
    }
    if (url.isValid()
        && (url.scheme() == QLatin1String("postgresql")
            || url.scheme() == QLatin1String("postgres"))
        && url.path().size() > 1)
        return parseServer(url, fault);
    *fault = QCoreApplication::translate(
        "store", "the address is not of the form postgresql://user@server/database");
    return {};
}

QString address::shown() const
{
    if (!isServer)
        return QDir::toNativeSeparators(database);
    return QStringLiteral("%1%2/%3").arg(user.isEmpty() ? QString() : user + QLatin1Char('@'),
                                         host.isEmpty() ? QStringLiteral("localhost") : host,
                                         database);
}

// --- Connection
// -----------------------------------------------------------------------------------

connection::connection()
{
    static std::atomic<int> count;
    m_name = QStringLiteral("store-%1").arg(++count);
}

connection::~connection() { close(); }

QSqlDatabase connection::database() const { return QSqlDatabase::database(m_name, false); }

bool connection::isOpen() const { return QSqlDatabase::contains(m_name) && database().isOpen(); }

void connection::close()
{
    if (!QSqlDatabase::contains(m_name))
        return;
    rollback();
    m_prepared.clear();
    database().close();
    QSqlDatabase::removeDatabase(m_name);
}

void connection::note(const QSqlError &error)
{
    m_code = error.nativeErrorCode();
    m_fault = error.databaseText().trimmed();
    if (m_fault.isEmpty())
        m_fault = error.driverText().trimmed();
    // The driver repeats the first line with what it is about.
    m_fault.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

bool connection::open(const address &to, const QString &password)
{
    close();
    m_isServer = to.isServer;
    m_wantsPassword = false;
    m_fault.clear();
    const QString driver = to.isServer ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE");
    if (!QSqlDatabase::isDriverAvailable(driver)) {
        m_fault = QCoreApplication::translate("store", "the driver %1 of Qt is not installed")
                      .arg(driver);
        return false;
    }
    QSqlDatabase made = QSqlDatabase::addDatabase(driver, m_name);
    made.setDatabaseName(to.database);
    if (to.isServer) {
        made.setHostName(to.host);
        if (to.port > 0)
            made.setPort(to.port);
        made.setUserName(to.user);
        made.setPassword(password);
        made.setConnectOptions(to.options);
    } else {
        made.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
    }
    if (!made.open()) {
        note(made.lastError());
        // A server that speaks Polish says so in Polish.
        m_wantsPassword =
            m_fault.contains(QLatin1String("password")) || m_fault.contains(QStringLiteral("hasł"));
        return false;
    }
    return !to.isServer
           || (run(QStringLiteral("set search_path to kivzp"))
               && run(QStringLiteral("set lock_timeout to '20s'"))
               && run(QStringLiteral("set client_min_messages to warning")));
}

std::optional<QSqlQuery> connection::ask(const QString &sql, const QVariantList &values,
                                         bool isOnce)
{
    const auto known = m_prepared.constFind(sql);
    QSqlQuery query = known == m_prepared.constEnd() ? QSqlQuery(database()) : *known;
    if (known == m_prepared.constEnd()) {
        query.setForwardOnly(true);
        const bool isGood = isOnce ? query.exec(sql) : query.prepare(sql);
        if (!isGood) {
            note(query.lastError());
            return {};
        }
        if (isOnce)
            return query;
        m_prepared.insert(sql, query);
    }
    for (int i = 0; i < values.size(); ++i)
        query.bindValue(i, values[i]);
    if (!query.exec()) {
        note(query.lastError());
        return {};
    }
    return query;
}

std::optional<QSqlQuery> connection::ask(const QString &sql, const QVariantList &values)
{
    return ask(sql, values, values.isEmpty());
}

bool connection::run(const QString &sql, const QVariantList &values)
{
    std::optional<QSqlQuery> query = ask(sql, values);
    if (!query)
        return false;
    m_affected = query->numRowsAffected();
    query->finish();
    return true;
}

QVariant connection::askOne(const QString &sql, const QVariantList &values)
{
    std::optional<QSqlQuery> query = ask(sql, values);
    const QVariant value = query && query->next() ? query->value(0) : QVariant();
    if (query)
        query->finish();
    return value;
}

bool connection::begin(bool forWriting)
{
    m_gaveUp = false;
    if (!m_isServer)
        return m_inside =
                   run(forWriting ? QStringLiteral("begin immediate") : QStringLiteral("begin"));
    if (!forWriting)
        return m_inside = run(QStringLiteral("begin isolation level repeatable read read only"));
    if (m_waiting)
        return beginWaiting();
    // Whoever writes holds this row: changes become visible in the order of their numbers.
    m_inside = run(QStringLiteral("begin"));
    if (m_inside && !run(QStringLiteral("select release from about for update")))
        rollback();
    return m_inside;
}

// The same, asked for again and again.
bool connection::beginWaiting()
{
    constexpr int stepMs = 50;
    constexpr int mostMs = 20000;
    QElapsedTimer since;
    since.start();
    while (true) {
        m_inside = run(QStringLiteral("begin"));
        if (!m_inside || run(QStringLiteral("select release from about for update nowait")))
            return m_inside;
        rollback();
        const QLatin1String isLocked("55P03");
        if (m_code != isLocked || since.hasExpired(mostMs))
            return false;
        m_gaveUp = !m_waiting();
        if (m_gaveUp)
            return false;
        QThread::msleep(stepMs);
    }
}

bool connection::commit()
{
    if (run(QStringLiteral("commit"))) {
        m_inside = false;
        return true;
    }
    const QString fault = m_fault;
    rollback();
    m_fault = fault;
    return false;
}

void connection::rollback()
{
    if (!m_inside)
        return;
    m_inside = false;
    const QString fault = m_fault;
    run(QStringLiteral("rollback"));
    m_fault = fault;
}

// --- Tables
// ---------------------------------------------------------------------------------------

QString quoted(const QString &name)
{
    QString inside = name;
    inside.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + inside + QLatin1Char('"');
}

bool makeTables(connection &to)
{
    const bool isServer = to.isServer();
    if (isServer && !to.run(QStringLiteral("create schema if not exists ") + schema))
        return false;
    if (!to.run(QStringLiteral("begin")))
        return false;
    for (const QString &one : statements(isServer) + (isServer ? grants() : QStringList()))
        if (!to.run(one)) {
            to.run(QStringLiteral("rollback"));
            return false;
        }
    if (to.askOne(QStringLiteral("select count(*) from about")).toInt() == 0
        && !to.run(QStringLiteral("insert into about (version, id, release) values (?, ?, 0)"),
                   {version, newId()})) {
        to.run(QStringLiteral("rollback"));
        return false;
    }
    return to.commit();
}

QString idOf(connection &to, QString *fault)
{
    const auto found = to.ask(QStringLiteral("select version, id from about"));
    QSqlQuery row = found ? *found : QSqlQuery();
    if (!found || !row.next()) {
        *fault = QCoreApplication::translate(
                     "store", "there is no shared store yet, or you may not read it: %1")
                     .arg(to.fault());
        return {};
    }
    if (row.value(0).toInt() != version) {
        *fault = QCoreApplication::translate("store",
                                             "the shared store is of version %1, and this program "
                                             "knows version %2")
                     .arg(row.value(0).toInt())
                     .arg(version);
        return {};
    }
    return row.value(1).toString();
}

bool mayWrite(connection &to)
{
    if (to.isServer())
        return to.askOne(QStringLiteral("select has_table_privilege('kivzp.material', 'UPDATE')"))
            .toBool();
    return QFileInfo(to.database().databaseName()).isWritable();
}

} // namespace store
