#include "data/keptSearches.h"

#include "util/foldedText.h"

#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace {

constexpr int mostLast = 10;
const QString keptKey = QStringLiteral("kept");
const QString nameKey = QStringLiteral("name");
const QString wordsKey = QStringLiteral("words");
const QString lastKey = QStringLiteral("last");

class store : public QSettings
{
public:
    store()
        : QSettings(keptSearches::file(), QSettings::IniFormat)
    {
        setIniCodec("UTF-8");
    }
    bool written()
    {
        sync();
        // What could not be read is replaced.
        return status() != AccessError && isWritable();
    }
};

} // namespace

namespace keptSearches {

// The same for both programs, whatever their names.
QString file()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
           + QLatin1String("/VELT/KivZP/searches.ini");
}

std::vector<keptSearch> all()
{
    store settings;
    std::vector<keptSearch> result;
    const int count = settings.beginReadArray(keptKey);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const keptSearch search{settings.value(nameKey).toString(),
                                settings.value(wordsKey).toString()};
        // Whatever size the file tells.
        if (search.name.isEmpty())
            break;
        result.push_back(search);
    }
    std::sort(result.begin(), result.end(), [](const keptSearch &a, const keptSearch &b) {
        return QString::localeAwareCompare(a.name, b.name) < 0;
    });
    return result;
}

bool setAll(const std::vector<keptSearch> &searches)
{
    store settings;
    settings.remove(keptKey);
    settings.beginWriteArray(keptKey, int(searches.size()));
    for (size_t i = 0; i < searches.size(); ++i) {
        settings.setArrayIndex(int(i));
        settings.setValue(nameKey, searches[i].name);
        settings.setValue(wordsKey, searches[i].words);
    }
    settings.endArray();
    return settings.written();
}

std::optional<keptSearch> find(const QString &name)
{
    const std::string wanted = text::folded(name.trimmed());
    for (const keptSearch &search : all())
        if (text::folded(search.name) == wanted)
            return search;
    return std::nullopt;
}

bool keep(const keptSearch &search)
{
    std::vector<keptSearch> searches = all();
    const std::string wanted = text::folded(search.name);
    std::erase_if(searches,
                  [&](const keptSearch &kept) { return text::folded(kept.name) == wanted; });
    searches.push_back(search);
    return setAll(searches);
}

QStringList last() { return store().value(lastKey).toStringList(); }

void addLast(const QString &words)
{
    const QString added = words.simplified();
    if (added.isEmpty())
        return;
    store settings;
    QStringList list = settings.value(lastKey).toStringList();
    if (list.value(0) == added)
        return;
    list.removeAll(added);
    list.prepend(added);
    settings.setValue(lastKey, QStringList(list.mid(0, mostLast)));
}

void forgetLast() { store().remove(lastKey); }

} // namespace keptSearches
