#include "database/kicadLibrary.h"

#include "database/exportNames.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Under which name the driver is known to the system's ODBC, unless somebody gave it another one.
QString driver()
{
#ifdef Q_OS_WIN
    return QStringLiteral("{SQLite3 ODBC Driver}");
#else
    return QStringLiteral("SQLite3");
#endif
}

// A part is named LIBRARY-TABLE:KEY, in which these characters have a meaning.
QString nickname(QString table)
{
    for (QChar &c : table)
        if (QLatin1String(":/\\<>|*?").contains(c))
            c = QLatin1Char('_');
    return table;
}

QString nameOf(const QList<kicadLibrary::column> &columns, kicadLibrary::columnUse use)
{
    for (const kicadLibrary::column &column : columns)
        if (column.use == use)
            return column.name;
    return {};
}

} // namespace

namespace kicadLibrary {

bool canDescribe(const QString &table) { return !table.contains(QLatin1Char('"')); }

QByteArray text(const QString &fileName, const QStringList &tables, const QList<column> &columns)
{
    QJsonArray fields;
    for (const column &c : columns) {
        if (c.use != parameter && c.use != shown && c.use != value)
            continue;
        // The field of the value has this name in every language.
        fields.append(QJsonObject{
            {QStringLiteral("column"), c.name},
            {QStringLiteral("name"), c.use == value ? QStringLiteral("Value") : c.name},
            {QStringLiteral("visible_on_add"), c.use == value},
            {QStringLiteral("visible_in_chooser"), c.use != parameter},
            {QStringLiteral("show_name"), false},
        });
    }
    QStringList described;
    QStringList nicknames;
    for (const QString &table : tables)
        if (canDescribe(table)) {
            described.append(table);
            nicknames.append(nickname(table));
        }
    nicknames = exportNames::sqlNames(nicknames);
    QJsonArray libraries;
    for (int i = 0; i < described.size(); ++i)
        libraries.append(QJsonObject{
            {QStringLiteral("name"), nicknames.at(i)},
            {QStringLiteral("table"), described.at(i)},
            {QStringLiteral("key"), nameOf(columns, key)},
            {QStringLiteral("symbols"), nameOf(columns, symbol)},
            {QStringLiteral("footprints"), nameOf(columns, footprint)},
            {QStringLiteral("fields"), fields},
            {QStringLiteral("properties"),
             QJsonObject{{QStringLiteral("description"), nameOf(columns, description)}}},
        });
    // KiCad puts its own folder of the description in the place of ${CWD}.
    const QJsonObject source{
        {QStringLiteral("type"), QStringLiteral("odbc")},
        {QStringLiteral("dsn"), QString()},
        {QStringLiteral("username"), QString()},
        {QStringLiteral("password"), QString()},
        {QStringLiteral("timeout_seconds"), 2},
        {QStringLiteral("connection_string"),
         QStringLiteral("Driver=%1;Database=${CWD}/%2").arg(driver(), fileName)},
    };
    return QJsonDocument(QJsonObject{
                             {QStringLiteral("meta"), QJsonObject{{QStringLiteral("version"), 0}}},
                             {QStringLiteral("name"), QFileInfo(fileName).completeBaseName()},
                             {QStringLiteral("description"), fileName},
                             {QStringLiteral("source"), source},
                             {QStringLiteral("libraries"), libraries},
                         })
        .toJson();
}

} // namespace kicadLibrary
