#include "database/sharedLibrary.h"

#include "data/kiv_mat_databaseStruct.h"
#include "database/exportNames.h"
#include "store/storeConnection.h"
#include "util/messages.h"
#include "util/safeFile.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QRegularExpression>
#include <QSqlDriver>
#include <QSqlField>

#include <algorithm>

namespace {

using sharedLibrary::library;

// Names up to here can get what tells equal ones apart.
constexpr int longestBase = sharedLibrary::longestName - 11;

// What the comments of our own begin with; the name that they were made of follows.
const QString mark = QStringLiteral("KivZP: ");

QString told(const char *text) { return QCoreApplication::translate("sharedLibrary", text); }

// The beginning of a text that has at most so many bytes, or its end.
QString within(QString text, int bytes, bool isEnd)
{
    while (text.toUtf8().size() > bytes) {
        const bool isPair =
            isEnd ? text.at(0).isHighSurrogate() : text.at(text.size() - 1).isLowSurrogate();
        const int units = isPair && text.size() > 1 ? 2 : 1;
        text = isEnd ? text.mid(units) : text.chopped(units);
    }
    return text;
}

// What a view's name is made of, so that the server does not cut it. Of a longer one the beginning
// and the end are kept, with digits that follow from all of it.
QString shortened(const QString &name)
{
    const QString text = exportNames::replaceCharacters(name);
    if (text.toUtf8().size() <= longestBase)
        return name;
    constexpr int digits = 4;
    constexpr int joints = 2;
    const QString sum = QString::fromLatin1(
        QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Md5).toHex().left(digits));
    constexpr int parts = longestBase - digits - joints;
    const QString end = within(text, parts * 2 / 3, true).trimmed();
    const QString start = within(text, parts - end.toUtf8().size(), false).trimmed();
    return start + QLatin1Char('~') + end + QLatin1Char('_') + sum;
}

QStringList shortened(QStringList names)
{
    for (QString &name : names)
        name = shortened(name);
    return names;
}

struct group
{
    QString id;
    QString name;
    int materials = 0;
};

// What is asked and made on the server. Each step is false, or nothing, with the fault.
class maker
{
public:
    maker(store::connection &to, QString document, library *made)
        : m_to(to)
        , m_name(std::move(document))
        , m_made(*made)
    {
    }

    bool make()
    {
        return mayMake() && m_to.begin(true) && findDocument() && makeSchema() && findGroups()
               && makeViews() && m_to.commit();
    }

    // Of the step that failed.
    QString fault() const { return m_fault.isEmpty() ? m_to.fault() : m_fault; }

private:
    bool refuse(const QString &fault)
    {
        m_fault = fault;
        return false;
    }

    // A text as a value in a statement that takes no values from outside.
    QString literal(const QString &text) const
    {
        QSqlField field(QString(), QVariant::String);
        field.setValue(text);
        return m_to.database().driver()->formatValue(field);
    }

    QString inSchema(const QString &name) const
    {
        return store::quoted(m_made.schema) + QLatin1Char('.') + store::quoted(name);
    }

    bool mayMake()
    {
        if (!m_to.isServer())
            return refuse(told(QT_TRANSLATE_NOOP("sharedLibrary",
                                                 "a library is made on a PostgreSQL server only")));
        QString fault;
        if (store::idOf(m_to, &fault).isEmpty())
            return refuse(fault);
        const auto asked = m_to.ask(QStringLiteral(
            "select pg_has_role('kivzp_administrator', 'member'), pg_has_role(datdba, 'member'), "
            "current_user from pg_database where datname = current_database()"));
        QSqlQuery row = asked ? *asked : QSqlQuery();
        if (!asked || !row.next())
            return false;
        m_isAdministrator = row.value(0).toBool();
        if (m_isAdministrator || row.value(1).toBool())
            return true;
        return refuse(told(QT_TRANSLATE_NOOP("sharedLibrary",
                                             "only an administrator of the store may make its "
                                             "library, and %1 is none"))
                          .arg(row.value(2).toString()));
    }

    bool findDocument()
    {
        const auto asked =
            m_to.ask(QStringLiteral("select id from document where kind = ? and name = ?"),
                     {fileKinds::database.root, m_name});
        QSqlQuery row = asked ? *asked : QSqlQuery();
        if (!asked)
            return false;
        if (!row.next())
            return refuse(
                told(QT_TRANSLATE_NOOP("sharedLibrary", "the store has no material database %1"))
                    .arg(m_name));
        m_document = row.value(0).toString();
        row.finish();
        return true;
    }

    // The schema that was made for this document is told by its comment. One of another name stays
    // that document's, or whoever's it is.
    bool makeSchema()
    {
        const auto asked = m_to.ask(QStringLiteral(
            "select nspname, obj_description(oid, 'pg_namespace'), pg_get_userbyid(nspowner), "
            "pg_has_role(nspowner, 'member') from pg_namespace where nspname like 'cad\\_%'"));
        QSqlQuery row = asked ? *asked : QSqlQuery();
        if (!asked)
            return false;
        QStringList others;
        QString owner;
        bool mayChange = false;
        while (row.next()) {
            if (row.value(1).toString() != mark + m_name) {
                others.append(row.value(0).toString());
                continue;
            }
            m_made.schema = row.value(0).toString();
            owner = row.value(2).toString();
            mayChange = row.value(3).toBool();
        }
        if (m_made.schema.isEmpty())
            return makeNewSchema(others);
        if (!mayChange)
            return refuse(told(QT_TRANSLATE_NOOP("sharedLibrary",
                                                 "the library belongs to %1, who alone may make it "
                                                 "again"))
                              .arg(owner));
        return actAs(owner) && dropViews();
    }

    bool makeNewSchema(const QStringList &others)
    {
        const QString name = shortened(QLatin1String("cad_") + m_name);
        m_made.schema = exportNames::sqlNames({name}, others).first();
        const auto asked =
            m_to.ask(QStringLiteral("select has_database_privilege(current_database(), 'create'), "
                                    "current_database(), current_user"));
        QSqlQuery row = asked ? *asked : QSqlQuery();
        if (!asked || !row.next())
            return false;
        if (!row.value(0).toBool())
            return refuse(
                told(QT_TRANSLATE_NOOP("sharedLibrary",
                                       "the library is made the first time by the owner of the "
                                       "database, or after: %1"))
                    .arg(QStringLiteral("grant create on database %1 to kivzp_administrator")
                             .arg(store::quoted(row.value(1).toString()))));
        // So that every administrator may make it again.
        const QString owner =
            m_isAdministrator ? QStringLiteral("kivzp_administrator") : row.value(2).toString();
        return m_to.run(QStringLiteral("create schema %1 authorization %2")
                            .arg(store::quoted(m_made.schema), store::quoted(owner)))
               && actAs(owner)
               && m_to.run(QStringLiteral("comment on schema %1 is %2")
                               .arg(store::quoted(m_made.schema), literal(mark + m_name)))
               && m_to.run(QStringLiteral("grant usage on schema %1 to kivzp_reader")
                               .arg(store::quoted(m_made.schema)));
    }

    // Until the transaction ends.
    bool actAs(const QString &role)
    {
        return m_to.run(QLatin1String("set local role ") + store::quoted(role));
    }

    // Those of the last time go, told by their comments, and their names are kept in mind. Other
    // things in the schema stay.
    bool dropViews()
    {
        const auto asked = m_to.ask(
            QStringLiteral("select relname, obj_description(c.oid, 'pg_class'), relkind = 'v' from "
                           "pg_class c join pg_namespace n on n.oid = relnamespace where nspname "
                           "= ?"),
            {m_made.schema});
        QSqlQuery row = asked ? *asked : QSqlQuery();
        if (!asked)
            return false;
        QStringList old;
        while (row.next()) {
            const QString name = row.value(0).toString();
            const QString comment = row.value(1).toString();
            if (!row.value(2).toBool() || !comment.startsWith(mark)) {
                m_foreign.append(name);
                continue;
            }
            old.append(name);
            // Of several that were made of one name it is that which has no digits.
            QString &before = m_before[shortened(comment.mid(mark.size()))];
            if (before.isEmpty() || name.size() < before.size())
                before = name;
        }
        return std::all_of(old.begin(), old.end(), [this](const QString &name) {
            return m_to.run(QLatin1String("drop view ") + inSchema(name));
        });
    }

    bool findGroups()
    {
        const auto asked = m_to.ask(
            QStringLiteral("select g.row_id, g.name, count(*) from material_group g join material "
                           "m on m.row_below = g.row_id and m.row_document = g.row_document where "
                           "g.row_document = ? and g.row_gone = 0 and m.row_gone = 0 group by "
                           "g.row_id, g.name, g.row_place order by g.row_place, g.row_id"),
            {m_document});
        QSqlQuery row = asked ? *asked : QSqlQuery();
        if (!asked)
            return false;
        while (row.next())
            m_groups.append(
                {row.value(0).toString(), row.value(1).toString(), row.value(2).toInt()});
        return true;
    }

    // What the view shows under each column's name. Its texts have a length that no one limits, and
    // a type that CAD tools show as a line of text.
    QString selected() const
    {
        QStringList all;
        const auto &contents = libraryDescription::contents();
        for (size_t i = 0; i < contents.size(); ++i) {
            QString value = contents[i].caption ? QStringLiteral("g.name") : QStringLiteral("''");
            for (const auto &field : materialStruct::fields())
                if (contents[i].field && field.member == contents[i].field)
                    value = QLatin1String("m.") + store::quoted(field.name);
            all.append(QStringLiteral("%1::varchar as %2")
                           .arg(value, store::quoted(m_made.columns.at(int(i)))));
        }
        return all.join(QLatin1String(", "));
    }

    bool makeViews()
    {
        m_made.columns = exportNames::sqlNames(shortened(libraryDescription::captions()),
                                               {QStringLiteral("id")});
        QStringList wanted;
        for (const group &one : qAsConst(m_groups))
            wanted.append(shortened(one.name));
        const QStringList names = exportNames::sqlNames(wanted, m_foreign, m_before);
        const QString columns = selected();
        for (int i = 0; i < m_groups.size(); ++i) {
            const QString view = inSchema(names.at(i));
            // Not by arg(): a name may look like a place.
            const QString query =
                QLatin1String("select ") + columns
                + QLatin1String(" from kivzp.material m join kivzp.material_group g on g.row_id = "
                                "m.row_below where m.row_document = ")
                + literal(m_document) + QLatin1String(" and m.row_below = ")
                + literal(m_groups.at(i).id)
                + QLatin1String(" and m.row_gone = 0 and g.row_gone = 0 order by m.row_place");
            if (!m_to.run(QLatin1String("create view ") + view + QLatin1String(" as ") + query)
                || !m_to.run(QLatin1String("comment on view ") + view + QLatin1String(" is ")
                             + literal(mark + m_groups.at(i).name))
                || !m_to.run(QLatin1String("grant select on ") + view
                             + QLatin1String(" to kivzp_reader")))
                return false;
            m_made.views.append({names.at(i), m_groups.at(i).name, m_groups.at(i).materials});
        }
        return true;
    }

    store::connection &m_to;
    const QString m_name;
    library &m_made;
    QString m_fault;
    QString m_document; // its id
    bool m_isAdministrator = false;
    QStringList m_foreign;            // names in the schema that are not ours
    QHash<QString, QString> m_before; // names of views by what they were made of
    QList<group> m_groups;
};

// An option of an address as the driver takes it; empty when it is not given.
QString optionOf(const store::address &at, const QString &name)
{
    static const QRegularExpression form(QStringLiteral("(?:^|;)([a-z]+)='([^';]*)'"));
    for (auto found = form.globalMatch(at.options); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        if (match.captured(1) == name)
            return match.captured(2);
    }
    return {};
}

bool isOwnComputer(const QString &host)
{
    return host.startsWith(QLatin1Char('/')) || host == QLatin1String("localhost")
           || host == QLatin1String("::1") || host.startsWith(QLatin1String("127."));
}

QString note(const QString &text, const QString &subject, const QString &reason = {})
{
    return messages::failed(text.toHtmlEscaped() + QLatin1String("&nbsp;"), subject, reason);
}

QStringList notesOf(const library &made, const QString &host, const QString &path)
{
    QStringList notes;
    for (const sharedLibrary::view &each : made.views)
        if (exportNames::replaceCharacters(each.group) != each.name)
            notes.append(note(QCoreApplication::translate("altiumExport", "Name changed"),
                              each.group, each.name));
    for (const sharedLibrary::view &each : made.views)
        if (!libraryDescription::canDescribeView(each.name))
            notes.append(note(
                QCoreApplication::translate("altiumExport", "Left out of the library description"),
                each.name, text::fileNameOfPath(path)));
    if (isOwnComputer(host))
        notes.append(note(
            told(QT_TRANSLATE_NOOP("sharedLibrary", "Read on this computer only, by the address")),
            host));
    return notes;
}

} // namespace

namespace sharedLibrary {

library makeViews(store::connection &to, const QString &document)
{
    library made;
    maker of(to, document, &made);
    if (of.make())
        return made;
    library none;
    none.fault = of.fault();
    to.rollback();
    return none;
}

libraryDescription::server serverOf(const store::address &at)
{
    constexpr int usualPort = 5432;
    libraryDescription::server server;
    server.host = at.host.isEmpty() ? optionOf(at, QStringLiteral("hostaddr")) : at.host;
    if (server.host.isEmpty())
        server.host = QStringLiteral("localhost");
    server.port = at.port > 0 ? at.port : usualPort;
    server.database = at.database;
    const QString mode = optionOf(at, QStringLiteral("sslmode"));
    // The ODBC driver would go without encryption where nothing is said.
    server.sslMode = mode.isEmpty() ? QStringLiteral("prefer") : mode;
    return server;
}

outcome exportShared(store::connection &to, const store::address &at, const QString &document,
                     const QString &login, const QString &path)
{
    outcome result;
    const QString notWritten = messages::because(
        QCoreApplication::translate("altiumExport", "%1 cannot be written").arg(path), path);
    safeFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        result.fault = notWritten;
        return result;
    }
    result.views = makeViews(to, document);
    if (!result.views.fault.isEmpty()) {
        result.isRefused = true;
        result.fault = at.shown() + QLatin1String(": ") + result.views.fault;
        return result;
    }
    libraryDescription::server server = serverOf(at);
    server.login = login;
    server.schema = result.views.schema;
    QStringList names;
    for (const view &each : result.views.views)
        names.append(each.name);
    QList<libraryDescription::column> columns;
    const auto &contents = libraryDescription::contents();
    for (int i = 0; i < result.views.columns.size(); ++i) {
        const QString &name = result.views.columns.at(i);
        const char *reserved = contents[size_t(i)].reserved;
        columns.append({name, reserved ? QString::fromLatin1(reserved) : name});
    }
    const QByteArray description = libraryDescription::text(server, names, columns, 0);
    if (file.write(description) != description.size() || !file.commit()) {
        result.fault = notWritten;
        return result;
    }
    result.notes = notesOf(result.views, server.host, path);
    return result;
}

} // namespace sharedLibrary
