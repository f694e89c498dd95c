#include "util/labels.h"

#include <QCoreApplication>

namespace labels {

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

bool isCounted(const QString &storedUnit)
{
    static const QStringList measured{
        QStringLiteral("m"),  QStringLiteral("m2"), QStringLiteral("m3"), QStringLiteral("liter"),
        QStringLiteral("kg"), QStringLiteral("mm"), QStringLiteral("cm"), QStringLiteral("g")};
    return storedUnits().contains(storedUnit) && !measured.contains(storedUnit);
}

QString shown(const QString &stored)
{
    if (stored == QLatin1String("TAK") || stored == QLatin1String("YES"))
        return yesCapital();
    if (stored == QLatin1String("NIE"))
        return noCapital();
    return storedUnits().contains(stored)
               ? QCoreApplication::translate("labels", stored.toUtf8().constData())
               : stored;
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
