#include "data/configStruct.h"

#include "data/loaders.h"
#include "data/vocabulary.h"
#include "util/labels.h"
#include "util/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString usualBackupPath() { return QDir::tempPath() + QLatin1String("/KivZP_BACKUP"); }

QString icon(const char *name)
{
    return QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(name));
}

constexpr int defaultFontSize = 14;

struct optionDefault
{
    QLatin1String key;
    const char *value;
    const char *unit;
};

// EMAIL_MAPI is left out, because its mere presence decides, and so is PATH_BACKUP, which is added
// when it is first needed.
constexpr optionDefault optionDefaults[] = {
    {optionKey::editZp, "TAK", ""},
    {optionKey::editConfig, "TAK", ""},
    {optionKey::editDatabase, "TAK", ""},
    {optionKey::editFirm, "TAK", ""},
    {optionKey::openReportHtml, "NIE", ""},
    {optionKey::fontName, "Arial", ""},
    {optionKey::fontSize, "14", "px"},
    {optionKey::thresholdLow, "25", "%"},
    {optionKey::thresholdAverage, "50", "%"},
    {optionKey::thresholdHigh, "75", "%"},
    {optionKey::orderTarget, "xxx-xxxxxxxx", ""},
    {optionKey::orderDateAdd, "14", "days"},
    {optionKey::orderNumber, "", ""},
    {optionKey::orderDate, "", ""},
    {optionKey::personAuthor, "", ""},
    {optionKey::personApproved, "", ""},
    {optionKey::personContractor, "", ""},
    {optionKey::personAdmin, "", ""},
    {optionKey::fileConfig, "_config/kiv_mat_config.xml", ""},
    {optionKey::fileDbWarehouse, "_files/db_warehouse.xml", ""},
    {optionKey::fileDbService, "_files/db_service.xml", ""},
    {optionKey::fileDbAuthor, "_files/db_author.xml", ""},
    {optionKey::fileDbMechanics, "_files/db_mechanics.xml", ""},
    {optionKey::fileFirm, "_files/firms.xml", ""},
    {optionKey::fileBoms, "_files/boms.xml", ""},
    {optionKey::fileNewZp, "_zp/zp_new.xml", ""},
    {optionKey::fileLastZp, "_zp/zp_0.xml", ""},
    {optionKey::loadDbWarehouse, "TAK", ""},
    {optionKey::loadDbService, "TAK", ""},
    {optionKey::loadDbAuthor, "TAK", ""},
    {optionKey::loadDbMechanics, "TAK", ""},
    {optionKey::loadBoms, "TAK", ""},
    {optionKey::backupCount, "20", ""},
    {optionKey::language, "pl", ""},
    {optionKey::archivePassword, "", ""},
    {optionKey::serverName, "", ""},
    {optionKey::serverUserName, "", ""},
    {optionKey::serverUserPassword, "", ""},
    {optionKey::ordersFolders, "_zp", ""},
    {optionKey::bomAttrition, "", ""},
    {optionKey::bomMultiple, "", ""},
    {optionKey::orderThresholds, "", ""},
    {optionKey::vatRate, "", "%"},
    {optionKey::updateAddress, "", ""},
    {optionKey::updateUnsigned, "NIE", ""},
    {optionKey::storeAddress, "", ""}};

} // namespace

configStruct::configStruct()
    : documentStruct(fileKinds::config)
    , statuses{{statusWord::grey, {}, icon("led_gray")},
               {statusWord::blue, {}, icon("led_blue")},
               {statusWord::green, {}, icon("led_green")},
               {statusWord::violet, {}, icon("led_purple")}}
    , probabilities{{statusWord::low, {}, icon("led_green")},
                    {statusWord::high, {}, icon("led_red")}}
    , goodWhenYes{{statusWord::no, {}, icon("led_red")}, {statusWord::yes, {}, icon("led_green")}}
    , goodWhenNo{{statusWord::no, {}, icon("led_green")}, {statusWord::yes, {}, icon("led_red")}}
    , manufacturerStatuses{{statusWord::grey, {}, icon("zp_add_manufacturer_grey_128")},
                           {statusWord::blue, {}, icon("zp_add_manufacturer_blue_128")},
                           {statusWord::green, {}, icon("zp_add_manufacturer_green_128")}}
    , supplierStatuses{{statusWord::grey, {}, icon("zp_add_supplier_grey_128")},
                       {statusWord::blue, {}, icon("zp_add_supplier_blue_128")},
                       {statusWord::green, {}, icon("zp_add_supplier_green_128")}}
    , fileTypes{QStringLiteral("FILE_TR"),        QStringLiteral("FILE_MD"),
                QStringLiteral("FILE_SD"),        QStringLiteral("FILE_REACH"),
                QStringLiteral("FILE_DATASHEET"), QStringLiteral("FILE_CATALOG"),
                QStringLiteral("FILE_PDF"),       QStringLiteral("FILE_HTML"),
                QStringLiteral("FILE_XML"),       QStringLiteral("FILE_XLS"),
                QStringLiteral("FILE_CSV")}
{
}

void configStruct::setDefaults()
{
    options.items.clear();
    persons.items.clear();
    targets.items.clear();
    for (const optionDefault &row : optionDefaults) {
        optionStruct *option = options.append(std::make_unique<optionStruct>());
        option->editable = statusWord::editableYes;
        option->type = row.key;
        option->value1 = QLatin1String(row.value);
        option->unit = QLatin1String(row.unit);
        option->description = labels::optionCaption(row.key);
    }
}

bool configStruct::load(const QString &path)
{
    // The loader is content with a file that has no configuration in it.
    return fileKinds::ofFile(path) == &fileKinds::config && loadConfig(path, this) == 0;
}

bool configStruct::save(const QString &path) const
{
    hidePasswords(path);
    const bool written = saveXmlNoEvents(path, this) == 0;
    hidePasswords(path);
    return written;
}

void configStruct::hidePasswords(const QString &path) const
{
    if (options.value(optionKey::archivePassword).isEmpty()
        && options.value(optionKey::serverUserPassword).isEmpty())
        return;
    const QFile::Permissions others = QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    const QFile::Permissions now = QFile::permissions(path);
    if (now & others)
        QFile::setPermissions(path, now & ~others);
}

bool configStruct::isOn(const QString &key) const
{
    const QString value = options.value(key);
    return value.compare(statusWord::yes, Qt::CaseInsensitive) == 0
           || value.compare(statusWord::editableYes, Qt::CaseInsensitive) == 0;
}

QString configStruct::languageIn(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)) {
        QXmlStreamReader reader(&file);
        while (readToElement(&reader, optionStruct::element))
            if (attributeValue(&reader, QStringLiteral("type")) == optionKey::language)
                return attributeValue(&reader, QStringLiteral("value1")) == QLatin1String("en")
                           ? QStringLiteral("en")
                           : QStringLiteral("pl");
    }
    return QStringLiteral("pl");
}

QFont configStruct::font() const
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(defaultFontSize);
    if (const optionStruct *name = options.findOption(optionKey::fontName)) {
        font.setFamily(name->value1);
        const int size = options.value(optionKey::fontSize).toInt();
        font.setPixelSize(size > 0 ? size : defaultFontSize);
    }
    return font;
}

QStringList configStruct::orderFolders() const
{
    const optionStruct *option = options.findOption(optionKey::ordersFolders);
    const QString named = option ? option->value1 : QStringLiteral("_zp");
    QStringList folders;
    for (const QString &one : named.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        folders.append(QDir::cleanPath(QFileInfo(paths::data(one.trimmed())).absoluteFilePath()));
    folders.removeDuplicates();
    return folders;
}

QString configStruct::backupPath()
{
    optionStruct *option = options.findOption(optionKey::pathBackup);
    if (option && !option->value1.isEmpty())
        return option->value1;
    // An empty option is filled: a second one would never be found behind it.
    if (!option) {
        option = options.append(std::make_unique<optionStruct>());
        option->editable = statusWord::editableYes;
        option->type = optionKey::pathBackup;
    }
    option->value1 = option->value2 = usualBackupPath();
    return option->value1;
}

QStringList configStruct::backupFolders()
{
    QStringList folders{QDir::cleanPath(paths::beside(backupPath()))};
    if (folders.first() == QDir::cleanPath(usualBackupPath()))
        folders.append(paths::userDir() + QLatin1String("/KivZP_BACKUP"));
    return folders;
}

tagHandlerList configStruct::tagHandlers()
{
    static const std::vector<QString> tags{optionsStruct::element, personsStruct::element,
                                           targetsStruct::element};
    return {&tags, this};
}

int configStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == optionsStruct::element)
        options.readElement(reader);
    else if (reader->name() == personsStruct::element)
        persons.readElement(reader);
    else if (reader->name() == targetsStruct::element)
        targets.readElement(reader);
    else
        reader->readNext();
    return 1;
}

int configStruct::writeContent(QXmlStreamWriter *writer) const
{
    int result = options.writeXml(writer);
    if (result >= 0)
        result = persons.writeXml(writer);
    if (result >= 0)
        result = targets.writeXml(writer);
    return result;
}
