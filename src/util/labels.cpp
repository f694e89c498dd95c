#include "util/labels.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace labels {

namespace {

struct storedWord
{
    const char *stored;
    const char *context;
    const char *text;
};

// The words of files beside the units. Those that the user is shown alike come with the one first
// that is stored anew.
constexpr storedWord words[] = {
    {"TAK", "labels", "YES"},
    {"YES", "labels", "YES"},
    {"NIE", "labels", "NO"},
    {"SZARY", "labels", QT_TRANSLATE_NOOP("labels", "GRAY")},
    {"NIEBIESKI", "labels", QT_TRANSLATE_NOOP("labels", "BLUE")},
    {"ZIELONY", "labels", QT_TRANSLATE_NOOP("labels", "GREEN")},
    {"FIOLETOWY", "labels", QT_TRANSLATE_NOOP("labels", "VIOLET")},
    {"NISKIE", "labels", QT_TRANSLATE_NOOP("labels", "LOW")},
    {"WYSOKIE", "labels", QT_TRANSLATE_NOOP("labels", "HIGH")},
    {"FILE_TR", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "Test report (TR)")},
    {"FILE_MD", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "Material declaration (MD)")},
    {"FILE_SD", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "Supplier's declaration (SD)")},
    {"FILE_REACH", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "REACH declaration")},
    {"FILE_DATASHEET", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "Datasheet")},
    {"FILE_CATALOG", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "Catalogue")},
    {"FILE_PDF", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "PDF file")},
    {"FILE_HTML", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "Web page")},
    {"FILE_XML", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "XML file")},
    {"FILE_XLS", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "Spreadsheet")},
    {"FILE_CSV", "materialFiles", QT_TRANSLATE_NOOP("materialFiles", "CSV file")},
};

// The fields of all records, by their names in files, that hold such words or a unit. The same text
// in another field, as in the name of a material, is what it says.
bool holdsWords(const QString &field)
{
    static const char *const fields[] = {"d_unit",  "unit",     "d_active",      "status",
                                         "checked", "approved", "rohs_required", "rohs_probability",
                                         "edited",  "wait",     "editable",      "type"};
    return std::any_of(std::begin(fields), std::end(fields),
                       [&field](const char *known) { return field == QLatin1String(known); });
}

} // namespace

#define LABEL(name, text)                                                                          \
    QString name() { return QCoreApplication::translate("labels", text); }
#define UNIT(name, text) LABEL(name, text)
#include "util/labelList.h"
#undef LABEL
#undef UNIT

const QStringList &storedUnits()
{
#define LABEL(name, text)
#define UNIT(name, text) QStringLiteral(text),
    static const QStringList units{
#include "util/labelList.h"
    };
#undef LABEL
#undef UNIT
    return units;
}

const QString &unitOrPieces(const QString &stored)
{
    return stored.isEmpty() ? storedUnits().first() : stored;
}

bool isCounted(const QString &storedUnit)
{
    static const QStringList measured{
        QStringLiteral("m"),  QStringLiteral("m2"), QStringLiteral("m3"), QStringLiteral("liter"),
        QStringLiteral("kg"), QStringLiteral("mm"), QStringLiteral("cm"), QStringLiteral("g")};
    return storedUnits().contains(storedUnit) && !measured.contains(storedUnit);
}

QString shown(const QString &stored)
{
    static const QHash<QString, const storedWord *> known = [] {
        QHash<QString, const storedWord *> table;
        for (const storedWord &word : words)
            table.insert(QLatin1String(word.stored), &word);
        return table;
    }();
    if (const storedWord *word = known.value(stored))
        return QCoreApplication::translate(word->context, word->text);
    return storedUnits().contains(stored)
               ? QCoreApplication::translate("labels", stored.toUtf8().constData())
               : stored;
}

QString shownIn(const QString &field, const QString &stored)
{
    const QString name = field.section(QLatin1Char('/'), -1);
    if (!holdsWords(name))
        return stored;
    const QString caption = name == QLatin1String("type") ? optionCaption(stored) : QString();
    return caption.isEmpty() || caption.startsWith(QLatin1String("OPTION_")) ? shown(stored)
                                                                             : caption;
}

QString storedOf(const QString &text)
{
    const auto isShownAs = [&text](const QString &stored) {
        return shown(stored).compare(text, Qt::CaseInsensitive) == 0;
    };
    for (const storedWord &word : words)
        if (isShownAs(QLatin1String(word.stored)))
            return QLatin1String(word.stored);
    for (const QString &unit : storedUnits())
        if (isShownAs(unit))
            return unit;
    return text;
}

// The captions of options are looked up by key; this list shows them to the translator.
[[maybe_unused]] const char *const optionCaptions[] = {
    QT_TRANSLATE_NOOP("options", "OPTION_EDIT_ZP"),
    QT_TRANSLATE_NOOP("options", "OPTION_EDIT_CONFIG"),
    QT_TRANSLATE_NOOP("options", "OPTION_EDIT_DATABASE"),
    QT_TRANSLATE_NOOP("options", "OPTION_EDIT_FIRM"),
    QT_TRANSLATE_NOOP("options", "OPTION_EMAIL_MAPI"),
    QT_TRANSLATE_NOOP("options", "OPTION_OPEN_REPORT_HTML"),
    QT_TRANSLATE_NOOP("options", "OPTION_FONT_NAME"),
    QT_TRANSLATE_NOOP("options", "OPTION_FONT_SIZE"),
    QT_TRANSLATE_NOOP("options", "OPTION_THRESHOLD_LOW"),
    QT_TRANSLATE_NOOP("options", "OPTION_THRESHOLD_AVERAGE"),
    QT_TRANSLATE_NOOP("options", "OPTION_THRESHOLD_HIGH"),
    QT_TRANSLATE_NOOP("options", "OPTION_ORDER_TARGET"),
    QT_TRANSLATE_NOOP("options", "OPTION_BACKUP_COUNT"),
    QT_TRANSLATE_NOOP("options", "OPTION_LANGUAGE"),
    QT_TRANSLATE_NOOP("options", "OPTION_ORDERS_FOLDERS"),
    QT_TRANSLATE_NOOP("options", "OPTION_BOM_ATTRITION"),
    QT_TRANSLATE_NOOP("options", "OPTION_BOM_MULTIPLE"),
    QT_TRANSLATE_NOOP("options", "OPTION_ORDER_THRESHOLDS"),
    QT_TRANSLATE_NOOP("options", "OPTION_VAT_RATE"),
    QT_TRANSLATE_NOOP("options", "OPTION_UPDATE_ADDRESS"),
    QT_TRANSLATE_NOOP("options", "OPTION_UPDATE_UNSIGNED"),
    QT_TRANSLATE_NOOP("options", "OPTION_STORE_ADDRESS"),
    QT_TRANSLATE_NOOP("options", "OPTION_ORDER_DATE_ADD"),
    QT_TRANSLATE_NOOP("options", "OPTION_ORDER_NUMBER"),
    QT_TRANSLATE_NOOP("options", "OPTION_ORDER_DATE"),
    QT_TRANSLATE_NOOP("options", "OPTION_PERSON_AUTHOR"),
    QT_TRANSLATE_NOOP("options", "OPTION_PERSON_APPROVED"),
    QT_TRANSLATE_NOOP("options", "OPTION_PERSON_CONTRACTOR"),
    QT_TRANSLATE_NOOP("options", "OPTION_PERSON_ADMIN"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_CONFIG"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_DB_WAREHOUSE"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_DB_SERVICE"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_DB_AUTHOR"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_DB_MECHANICS"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_FIRM"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_BOMS"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_NEWZP"),
    QT_TRANSLATE_NOOP("options", "OPTION_FILE_LASTZP"),
    QT_TRANSLATE_NOOP("options", "OPTION_LOAD_DB_WAREHOUSE"),
    QT_TRANSLATE_NOOP("options", "OPTION_LOAD_DB_SERVICE"),
    QT_TRANSLATE_NOOP("options", "OPTION_LOAD_DB_AUTHOR"),
    QT_TRANSLATE_NOOP("options", "OPTION_LOAD_DB_MECHANICS"),
    QT_TRANSLATE_NOOP("options", "OPTION_LOAD_BOMS"),
    QT_TRANSLATE_NOOP("options", "OPTION_PATH_BACKUP"),
    QT_TRANSLATE_NOOP("options", "OPTION_ARCHIVE_PASSWORD"),
    QT_TRANSLATE_NOOP("options", "OPTION_SERVER_NAME"),
    QT_TRANSLATE_NOOP("options", "OPTION_SERVER_USER_NAME"),
    QT_TRANSLATE_NOOP("options", "OPTION_SERVER_USER_PASSWORD"),
};

QString optionCaption(const QString &key)
{
    return QCoreApplication::translate("options", ("OPTION_" + key.toUtf8()).constData());
}

} // namespace labels
