#include "database/libraryDescription.h"

namespace {

// Separates the settings of a field; a name that holds it cannot be described.
constexpr QLatin1Char separator('|');

// How the spreadsheet driver calls a sheet: two characters have another meaning for it.
QString driverName(libraryDescription::source kind, QString table)
{
    if (kind == libraryDescription::sqliteFile)
        return table;
    table.replace(QLatin1Char('.'), QLatin1Char('#')).replace(QLatin1Char('!'), QLatin1Char('_'));
    return table + QLatin1Char('$');
}

QString connection(libraryDescription::source kind, const QString &fileName)
{
    if (kind == libraryDescription::workbookFile)
        return QLatin1String("Provider=Microsoft.ACE.OLEDB.12.0;Data Source=.\\") + fileName
               + QLatin1String(";Extended Properties=\"Excel 12.0 Xml;HDR=YES;IMEX=1\";"
                               "Persist Security Info=False");
    return QLatin1String("Provider=MSDASQL.1;Persist Security Info=False;Extended Properties="
                         "\"DRIVER=SQLite3 ODBC Driver;Database=.\\")
           + fileName + QLatin1String(";\"");
}

} // namespace

namespace libraryDescription {

QByteArray text(source kind, const QString &fileName, const QStringList &tables,
                const QList<column> &columns, int keyColumn)
{
    QString result;
    const auto line = [&result](const QString &content) {
        result += content + QLatin1String("\r\n");
    };
    line(QStringLiteral("[OutputDatabaseLinkFile]"));
    line(QStringLiteral("Version=1.1"));
    line(QStringLiteral("[DatabaseLinks]"));
    line(QLatin1String("ConnectionString=") + connection(kind, fileName));
    for (const char *setting :
         {"AddMode=3", "RemoveMode=1", "UpdateMode=2", "ViewMode=0", "LeftQuote=[", "RightQuote=]",
          "QuoteTableNames=1", "UseTableSchemaName=0", "DefaultColumnType=VARCHAR(255)",
          "LibraryDatabaseType="})
        line(QLatin1String(setting));
    line(QLatin1String("LibraryDatabasePath=.\\") + fileName);
    line(QStringLiteral("DatabasePathRelative=1"));
    line(QStringLiteral("LibrarySearchPath="));

    QStringList described;
    for (const QString &table : tables)
        if (!table.contains(separator))
            described.append(driverName(kind, table));
    const column &key = columns.at(keyColumn);
    for (int i = 0; i < described.size(); ++i) {
        line(QStringLiteral("[Table%1]").arg(i + 1));
        line(QStringLiteral("SchemaName="));
        line(QLatin1String("TableName=") + described.at(i));
        line(QStringLiteral("Enabled=True"));
        line(QStringLiteral("UserWhere=1"));
        line(QStringLiteral("UserWhereText=[%1] = '{%2}'").arg(key.name, key.parameter));
    }
    int number = 0;
    for (const QString &table : described) {
        for (const column &c : columns) {
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

} // namespace libraryDescription
