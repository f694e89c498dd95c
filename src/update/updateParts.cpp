#include "update/updateParts.h"

#include "data/programData.h"
#include "data/vocabulary.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace updates {

namespace {

using info = kiv_infoStruct;

const std::array<partRow, partCount> rows{{
    {"program",
     QT_TRANSLATE_NOOP("updates", "The program"),
     &info::kivVersion,
     &info::kivServerLink,
     {}},
    {"boms", QT_TRANSLATE_NOOP("updates", "BOM lists"), &info::bomServerRelease,
     &info::bomServerLink, optionKey::fileBoms},
    {"firms", QT_TRANSLATE_NOOP("updates", "Register of firms"), &info::firmServerRelease,
     &info::firmServerLink, optionKey::fileFirm},
    {"service", QT_TRANSLATE_NOOP("updates", "Database of services"), &info::serviceServerRelease,
     &info::serviceServerLink, optionKey::fileDbService},
    {"warehouse", QT_TRANSLATE_NOOP("updates", "Database of the warehouse"),
     &info::wearhouseServerRelease, &info::wearhouseServerLink, optionKey::fileDbWarehouse},
    {"mechanics", QT_TRANSLATE_NOOP("updates", "Database of mechanics"),
     &info::mechanicsServerRelease, &info::mechanicsServerLink, optionKey::fileDbMechanics},
}};

// The numbers without leading zeros, and none of the zeros at the end but the first number; nothing
// of any other text. They stay texts, since a date with a time is larger than an int.
QStringList numbersOf(const QString &release)
{
    static const QRegularExpression form(QStringLiteral("^[0-9]+(\\.[0-9]+)*$"));
    static const QRegularExpression zeros(QStringLiteral("^0+"));
    const QString plain = release.trimmed();
    if (!form.match(plain).hasMatch())
        return {};
    QStringList numbers = plain.split(QLatin1Char('.'));
    numbers.replaceInStrings(zeros, QString());
    while (numbers.size() > 1 && numbers.last().isEmpty())
        numbers.removeLast();
    return numbers;
}

} // namespace

const QString infoName = QStringLiteral("kiv_info.xml");
const QString scriptName = QStringLiteral("updateScript.xml");
const QString sumsName = QStringLiteral("kiv_update.sums");
const QString signatureEnding = QStringLiteral(".minisig");
const QString descriptionName = QStringLiteral("description.html");

const partRow &rowOf(part of) { return rows[size_t(of)]; }

QString captionOf(part of) { return QCoreApplication::translate("updates", rowOf(of).caption); }

part partCalled(const QString &word)
{
    for (size_t i = 0; i < rows.size(); ++i)
        if (word == QLatin1String(rows[i].word))
            return part(i);
    return partCount;
}

int compareReleases(const QString &one, const QString &other)
{
    const QStringList first = numbersOf(one);
    const QStringList second = numbersOf(other);
    for (int i = 0; i < std::min(first.size(), second.size()); ++i) {
        const int longer = first[i].size() - second[i].size();
        if (const int order = longer != 0 ? longer : first[i].compare(second[i]); order != 0)
            return order;
    }
    return first.size() - second.size();
}

std::unique_ptr<kiv_infoStruct> installed(const QString &programDir)
{
    auto here = std::make_unique<kiv_infoStruct>();
    const QString path = programDir + QLatin1Char('/') + infoName;
    if (!QFileInfo::exists(path) || !readChecked(path, here.get()))
        here = std::make_unique<kiv_infoStruct>();
    // The file may be older than the program, which was installed some other way, or newer: then
    // the new one has not begun yet.
    const QString running = QCoreApplication::applicationVersion();
    if (compareReleases(running, here->kivVersion) > 0)
        here->kivVersion = running;
    return here;
}

std::vector<standing> compare(const kiv_infoStruct &here, const kiv_infoStruct &there)
{
    std::vector<standing> all;
    for (int i = 0; i < partCount; ++i) {
        const partRow &row = rows[size_t(i)];
        const standing one{part(i), (here.*row.release).trimmed(), (there.*row.release).trimmed(),
                           (there.*row.link).trimmed()};
        if (!one.there.isEmpty() && !one.link.isEmpty())
            all.push_back(one);
    }
    return all;
}

} // namespace updates
