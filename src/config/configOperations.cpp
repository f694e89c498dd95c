#include "config/configOperations.h"

#include "data/lineSums.h"
#include "data/orderRules.h"
#include "data/purchaseThresholds.h"
#include "data/vocabulary.h"
#include "util/labels.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

namespace configOperations {

namespace {

constexpr int percent = 100;
constexpr int year = 365;

struct typeRow
{
    QLatin1String key; // of one option, or the beginning of several keys
    optionType type;
};

constexpr typeRow types[] = {
    {optionKey::fontName, {optionKind::fontName}},
    {optionKey::fontSize, {optionKind::number, 6, 48}},
    {optionKey::orderDateAdd, {optionKind::number, 0, year}},
    {optionKey::orderDate, {optionKind::date}},
    {optionKey::orderTarget, {optionKind::target}},
    {optionKey::backupCount, {optionKind::number, 1, 1000}},
    {optionKey::language, {optionKind::language, 0, 0, true}},
    {optionKey::archivePassword, {optionKind::password}},
    {optionKey::serverUserPassword, {optionKind::password}},
    {optionKey::openReportHtml, {optionKind::yesNo}},
    {optionKey::updateUnsigned, {optionKind::yesNo}},
    {word("EDIT_"), {optionKind::yesNo}},
    {word("LOAD_"), {optionKind::yesNo, 0, 0, true}},
    {word("THRESHOLD_"), {optionKind::number, 0, percent}},
    {word("PERSON_"), {optionKind::person}},
    {word("FILE_DB_"), {optionKind::file, 0, 0, true}},
    {optionKey::fileFirm, {optionKind::file, 0, 0, true}},
    {optionKey::fileBoms, {optionKind::file, 0, 0, true}},
    {word("FILE_"), {optionKind::file}},
    {word("PATH_"), {optionKind::folder}},
};

const configStruct &defaults()
{
    static const std::unique_ptr<configStruct> config = [] {
        auto made = std::make_unique<configStruct>();
        made->setDefaults();
        return made;
    }();
    return *config;
}

QString tr(const char *text) { return QCoreApplication::translate("configOperations", text); }

// Parts of a rule that cannot be read.
QString notUnderstood(const QStringList &parts)
{
    return parts.isEmpty() ? QString()
                           : tr("is not understood: %1").arg(parts.join(QLatin1String("; ")));
}

QString faultOf(const optionStruct &option)
{
    if (option.type == optionKey::bomAttrition)
        return notUnderstood(orderRules().readAttrition(option.value1));
    if (option.type == optionKey::bomMultiple)
        return notUnderstood(orderRules().readMultiples(option.value1));
    if (option.type == optionKey::orderThresholds)
        return notUnderstood(annualPlan::readThresholds(option.value1).faults);
    if (option.type == optionKey::vatRate)
        return option.value1.trimmed().isEmpty() || readVat(option.value1)
                   ? QString()
                   : tr("is no rate from 0 to 100");
    const optionType type = typeOf(option.type);
    switch (type.kind) {
    case optionKind::number: {
        bool isNumber = false;
        const int value = option.value1.toInt(&isNumber);
        return isNumber && value >= type.minimum && value <= type.maximum
                   ? QString()
                   : tr("is no number from %1 to %2").arg(type.minimum).arg(type.maximum);
    }
    case optionKind::date:
        return option.value1.isEmpty()
                       || QDate::fromString(option.value1, labels::dateFormat()).isValid()
                   ? QString()
                   : tr("is no date");
    case optionKind::folder:
        return option.value1.isEmpty() || QDir(paths::beside(option.value1)).exists()
                       || QDir().mkpath(paths::beside(option.value1))
                   ? QString()
                   : tr("is no folder");
    default:
        return {};
    }
}

} // namespace

optionType typeOf(const QString &key)
{
    for (const typeRow &row : types)
        if (key == row.key || (row.key.endsWith(QLatin1Char('_')) && key.startsWith(row.key)))
            return row.type;
    return {};
}

void addMissing(configStruct *config)
{
    for (const auto &option : defaults().options.items)
        if (!config->options.findOption(option->type))
            config->options.append(option->copy());
}

QString defaultValue(const QString &key)
{
    const optionStruct *option = defaults().options.findOption(key);
    return option ? option->value1 : QString();
}

QStringList faultsOf(const configStruct &config)
{
    QStringList faults;
    for (const auto &option : config.options.items)
        if (const QString fault = faultOf(*option); !fault.isEmpty())
            faults.append(labels::optionCaption(option->type) + QLatin1String(": ") + fault);
    return faults;
}

QStringList restartNeeded(const configStruct &before, const configStruct &after)
{
    QStringList captions;
    for (const auto &option : after.options.items)
        // An option that a file lacks has its default.
        if (const optionStruct *was = before.options.findOption(option->type);
            typeOf(option->type).needsRestart
            && (was ? was->value1 : defaultValue(option->type)) != option->value1)
            captions.append(labels::optionCaption(option->type));
    return captions;
}

int lineOf(const QString &key, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd())
        if (reader.readNextStartElement() && attributeValue(&reader, word("type")) == key)
            return int(reader.lineNumber());
    return 0;
}

QString storedPath(const QString &path)
{
    const QString relative = QDir(paths::data({})).relativeFilePath(path);
    return QDir::isAbsolutePath(path) && !relative.startsWith(QLatin1String("..")) ? relative
                                                                                   : path;
}

} // namespace configOperations
