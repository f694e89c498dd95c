#include "database/libraryDescription.h"

#include "data/kiv_mat_databaseStruct.h"
#include "database/exportNames.h"
#include "store/storeConnection.h"
#include "util/labels.h"

#include <QUrl>

#include <algorithm>

namespace {

// Separates the settings of a field.
constexpr QLatin1Char separator('|');

// What differs between the sources.
struct settings
{
    QString connection;
    QString file; // beside the description; none for a server
    QString schema;
    char leftQuote = '[';
    char rightQuote = ']';
};

// How the spreadsheet driver calls a sheet: two characters have another meaning for it.
QString driverName(libraryDescription::source kind, QString table)
{
    if (kind == libraryDescription::sqliteFile)
        return table;
    table.replace(QLatin1Char('.'), QLatin1Char('#')).replace(QLatin1Char('!'), QLatin1Char('_'));
    return table + QLatin1Char('$');
}

// By the bridge from Microsoft's data objects to ODBC.
QString bridged(QString odbc)
{
    return QLatin1String("Provider=MSDASQL.1;Persist Security Info=False;Extended Properties=\"")
           + odbc.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

QString connection(libraryDescription::source kind, const QString &fileName)
{
    if (kind == libraryDescription::workbookFile)
        return QLatin1String("Provider=Microsoft.ACE.OLEDB.12.0;Data Source=.\\") + fileName
               + QLatin1String(";Extended Properties=\"Excel 12.0 Xml;HDR=YES;IMEX=1\";"
                               "Persist Security Info=False");
    return bridged(QLatin1String("DRIVER=SQLite3 ODBC Driver;Database=.\\") + fileName
                   + QLatin1Char(';'));
}

// A value of an ODBC connection string, in braces where it would end early or be read otherwise.
QString odbcValue(const QString &value)
{
    const auto plain = [](QChar c) {
        return c.isLetterOrNumber() || QLatin1String("_-./:\\~").contains(c);
    };
    if (std::all_of(value.begin(), value.end(), plain))
        return value;
    QString inside = value;
    return QLatin1Char('{') + inside.replace(QLatin1Char('}'), QLatin1String("}}"))
           + QLatin1Char('}');
}

// tables: as the driver calls them.
QByteArray textOf(const settings &of, const QStringList &tables,
                  const QList<libraryDescription::column> &columns, int keyColumn)
{
    QString result;
    const auto line = [&result](const QString &content) {
        result += content + QLatin1String("\r\n");
    };
    const auto inQuotes = [&of](const QString &name) {
        return QLatin1Char(of.leftQuote) + name + QLatin1Char(of.rightQuote);
    };
    line(QStringLiteral("[OutputDatabaseLinkFile]"));
    line(QStringLiteral("Version=1.1"));
    line(QStringLiteral("[DatabaseLinks]"));
    line(QLatin1String("ConnectionString=") + of.connection);
    for (const char *setting : {"AddMode=3", "RemoveMode=1", "UpdateMode=2", "ViewMode=0"})
        line(QLatin1String(setting));
    line(QLatin1String("LeftQuote=") + QLatin1Char(of.leftQuote));
    line(QLatin1String("RightQuote=") + QLatin1Char(of.rightQuote));
    line(QStringLiteral("QuoteTableNames=1"));
    line(QStringLiteral("UseTableSchemaName=%1").arg(of.schema.isEmpty() ? 0 : 1));
    line(QStringLiteral("DefaultColumnType=VARCHAR(255)"));
    line(QStringLiteral("LibraryDatabaseType="));
    line(QLatin1String("LibraryDatabasePath=")
         + (of.file.isEmpty() ? QString() : QLatin1String(".\\") + of.file));
    line(QStringLiteral("DatabasePathRelative=%1").arg(of.file.isEmpty() ? 0 : 1));
    line(QStringLiteral("LibrarySearchPath="));

    const libraryDescription::column &key = columns.at(keyColumn);
    for (int i = 0; i < tables.size(); ++i) {
        line(QStringLiteral("[Table%1]").arg(i + 1));
        line(QLatin1String("SchemaName=") + of.schema);
        line(QLatin1String("TableName=") + tables.at(i));
        line(QStringLiteral("Enabled=True"));
        line(QStringLiteral("UserWhere=1"));
        line(QStringLiteral("UserWhereText=%1 = '{%2}'").arg(inQuotes(key.name), key.parameter));
    }
    int number = 0;
    for (const QString &table : tables) {
        for (const libraryDescription::column &c : columns) {
            line(QStringLiteral("[FieldMap%1]").arg(++number));
            line(QLatin1String("Options=FieldName=") + table + QLatin1Char('.') + c.name + separator
                 + QLatin1String("TableNameOnly=") + table + separator
                 + QLatin1String("FieldNameOnly=") + c.name + separator
                 + QLatin1String("FieldType=1") + separator + QLatin1String("ParameterName=")
                 + c.parameter + separator + QLatin1String("VisibleOnAdd=False") + separator
                 + QLatin1String("AddMode=0") + separator + QLatin1String("RemoveMode=0")
                 + separator + QLatin1String("UpdateMode=0"));
        }
    }
    return result.toUtf8();
}

} // namespace

namespace libraryDescription {

const std::vector<content> &contents()
{
    using material = materialStruct;
    static const std::vector<content> table{
        {labels::ktm, &material::d_ktm, nullptr},
        {labels::group, nullptr, nullptr},
        {labels::value, &material::d_value, nullptr},
        {labels::power, &material::d_power, nullptr},
        {labels::voltage, &material::d_voltage, nullptr},
        {labels::current, &material::d_current, nullptr},
        {labels::tolerance, &material::d_tolerance, nullptr},
        {labels::otherParameters, &material::d_otherParameters, nullptr},
        {labels::description, &material::d_description, "[Description]"},
        {labels::name, &material::d_name, nullptr},
        {labels::case_, &material::d_case, nullptr},
        {labels::quantity, &material::d_quantity, nullptr},
        {labels::price, &material::d_price, nullptr},
        {labels::averagePrice, &material::d_averagePrice, nullptr},
        {labels::active, &material::d_active, nullptr},
        {nullptr, nullptr, nullptr},
        {labels::libraryRef, &material::d_libraryRef, "[Library Ref]"},
        {labels::footprintRef, &material::d_footprintRef, "[Footprint Ref]"},
        {labels::footprintRef2, &material::d_footprintRef2, "[Footprint Ref 2]"},
        {labels::footprintRef3, &material::d_footprintRef3, "[Footprint Ref 3]"},
        {labels::footprintRef4, &material::d_footprintRef4, "[Footprint Ref 4]"},
        {labels::footprintRef5, &material::d_footprintRef5, "[Footprint Ref 5]"},
        {labels::footprintRef6, &material::d_footprintRef6, "[Footprint Ref 6]"},
    };
    return table;
}

QStringList captions()
{
    QStringList result;
    for (const content &column : contents())
        result.append(exportNames::replaceCharacters(column.caption ? column.caption()
                                                                    : QStringLiteral("Comment")));
    return result;
}

bool canDescribe(const QString &table)
{
    // Brackets quote names in the tool's queries.
    return !table.contains(separator) && !table.contains(QLatin1Char('['))
           && !table.contains(QLatin1Char(']'));
}

bool canDescribeView(const QString &view)
{
    return canDescribe(view) && std::all_of(view.begin(), view.end(), [](QChar c) {
               return c >= QLatin1Char(' ') && c != QLatin1Char('"');
           });
}

QByteArray text(source kind, const QString &fileName, const QStringList &tables,
                const QList<column> &columns, int keyColumn)
{
    settings of;
    of.connection = connection(kind, fileName);
    of.file = fileName;
    QStringList described;
    for (const QString &table : tables)
        if (canDescribe(table))
            described.append(driverName(kind, table));
    return textOf(of, described, columns, keyColumn);
}

QString odbcDriver() { return QStringLiteral("PostgreSQL Unicode(x64)"); }

QString odbcConnection(const server &at, const QString &driver)
{
    // Texts whose length nobody limits are told to be this long: tools that take a column at once
    // get no more of one.
    constexpr int longest = 4000;
    QString result = QLatin1String("Driver={") + driver + QLatin1String("};");
    const auto add = [&result](const char *name, const QString &value) {
        result += QLatin1String(name) + QLatin1Char('=') + value + QLatin1Char(';');
    };
    add("Server", odbcValue(at.host));
    add("Port", QString::number(at.port));
    add("Database", odbcValue(at.database));
    add("Uid", odbcValue(at.login));
    add("SSLmode", at.sslMode);
    add("MaxVarcharSize", QString::number(longest));
    // Where the tool leaves the schema out of a query. The driver takes it as an address is
    // written, and forgets it when it is also told to read only: that is left to the login.
    const QString path = QLatin1String("set search_path to ") + store::quoted(at.schema);
    add("ConnSettings", QString::fromLatin1(QUrl::toPercentEncoding(path)));
    return result;
}

QByteArray text(const server &at, const QStringList &views, const QList<column> &columns,
                int keyColumn)
{
    settings of;
    of.connection = bridged(odbcConnection(at, odbcDriver()));
    of.schema = at.schema;
    of.leftQuote = of.rightQuote = '"';
    QStringList described;
    std::copy_if(views.begin(), views.end(), std::back_inserter(described), canDescribeView);
    return textOf(of, described, columns, keyColumn);
}

} // namespace libraryDescription
