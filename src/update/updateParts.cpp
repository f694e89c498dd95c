#include "update/updateParts.h"

#include "data/programData.h"
#include "data/vocabulary.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QVersionNumber>

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

QVersionNumber versionOf(const QString &release)
{
    int end = 0;
    const QVersionNumber version = QVersionNumber::fromString(release.trimmed(), &end);
    return end == release.trimmed().size() ? version.normalized() : QVersionNumber();
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
    const QVersionNumber first = versionOf(one);
    const QVersionNumber second = versionOf(other);
    // "0" is a release, no text is none.
    const bool isFirst = !one.trimmed().isEmpty() && one.trimmed()[0].isDigit();
    const bool isSecond = !other.trimmed().isEmpty() && other.trimmed()[0].isDigit();
    const int order = QVersionNumber::compare(first, second);
    return order != 0 ? order : int(isFirst) - int(isSecond);
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
