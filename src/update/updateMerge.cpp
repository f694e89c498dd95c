#include "update/updateMerge.h"

#include "data/documentMerge.h"
#include "data/documentStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "util/fileLock.h"
#include "util/files.h"
#include "util/safeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace updates {

namespace {

using change = updateJournal::change;

// Nothing of it may be lost: with no common state, what only they have comes too.
int pickRows(documentMerge *merge, bool hasBase)
{
    int stayed = 0;
    for (mergeRow &row : merge->rows) {
        if (row.who != mergeRow::both)
            continue;
        row.picked = true;
        row.takeTheirs = !hasBase && row.mine.isNull();
        stayed += row.takeTheirs ? 0 : 1;
    }
    return stayed;
}

class merger
{
public:
    merger(const QString &root, const QString &scratch, QStringList *told,
           const progressFunction &progress)
        : m_root(root)
        , m_scratch(scratch)
        , m_told(told)
        , m_progress(progress)
    {
    }

    QString run(std::vector<change> *changes)
    {
        std::vector<change> all;
        for (change &one : *changes) {
            if (!isUsers(one.place)) {
                all.push_back(std::move(one));
                continue;
            }
            if (const QString fault = take(one, &all); !fault.isEmpty())
                return fault;
        }
        *changes = std::move(all);
        return {};
    }

private:
    QString basePlace(const QString &place) const { return QStringLiteral("update/base/") + place; }
    QString at(const QString &place) const { return m_root + QLatin1Char('/') + place; }

    QString take(const change &one, std::vector<change> *all)
    {
        const QString mine = at(one.place);
        const QString base = at(basePlace(one.place));
        const bool isThere = QFileInfo::exists(mine);
        if (isThere)
            if (const QStringList others = fileLock::othersOf(mine); !others.isEmpty())
                return QCoreApplication::translate("updates", "%1 is open elsewhere: %2")
                    .arg(QDir::toNativeSeparators(mine), others.join(QLatin1String(", ")));
        const bool isOwn = isThere && !(QFileInfo::exists(base) && files::sameContent(mine, base));
        if (one.source.isEmpty()) {
            if (isOwn)
                tell(one.place, QCoreApplication::translate(
                                    "updates", "was changed here, and is not removed"));
            else
                all->push_back(one);
            return {};
        }
        if (isThere && files::sameContent(mine, one.source))
            return noteBase(one, all);
        if (!isOwn) {
            all->push_back(one);
            return noteBase(one, all);
        }
        return merge(one, all);
    }

    QString merge(const change &one, std::vector<change> *all)
    {
        const QString mine = at(one.place);
        const QString base = at(basePlace(one.place));
        const fileKind *kind = fileKinds::ofFile(one.source);
        if (!kind || kind != fileKinds::ofFile(mine)) {
            tell(one.place,
                 QCoreApplication::translate("updates", "was changed here, and stays as it is"));
            return {};
        }
        QString fault;
        for (const QString &file : {mine, one.source})
            if (!readChecked(file, newDocument(*kind).get(), &fault))
                return QDir::toNativeSeparators(mine) + QLatin1String(": ") + fault;
        const bool hasBase = QFileInfo::exists(base);
        documentMerge both(hasBase ? base : QString(), mine, one.source, m_progress);
        if (!both.isReadable())
            return QCoreApplication::translate("updates", "%1 cannot be merged")
                .arg(QDir::toNativeSeparators(mine));
        const int stayed = pickRows(&both, hasBase);
        const QByteArray merged = both.merged();
        change made = one;
        made.source = m_scratch + QStringLiteral("/new/merged-%1").arg(++m_merged);
        safeFile file(made.source);
        if (!file.open(QIODevice::WriteOnly) || file.write(merged) != merged.size()
            || !file.commit())
            return QDir::toNativeSeparators(made.source) + QLatin1String(": ") + file.errorString();
        if (!readChecked(made.source, newDocument(*kind).get(), &fault))
            return QCoreApplication::translate("updates", "%1 cannot be merged")
                       .arg(QDir::toNativeSeparators(mine))
                   + QLatin1String(": ") + fault;
        tell(one.place, stayed == 0
                            ? QCoreApplication::translate("updates", "was changed here, and merged")
                            : QCoreApplication::translate(
                                "updates", "was changed here, and merged; %n text(s) stay yours",
                                nullptr, stayed));
        all->push_back(std::move(made));
        return noteBase(one, all);
    }

    // What the update brought is what the next one is compared with.
    QString noteBase(const change &one, std::vector<change> *all)
    {
        if (files::sameContent(at(basePlace(one.place)), one.source))
            return {};
        change made{basePlace(one.place),
                    m_scratch + QStringLiteral("/new/base-%1").arg(++m_merged), false};
        QDir().mkpath(QFileInfo(made.source).absolutePath());
        QFile file(one.source);
        if (!file.copy(made.source))
            return QDir::toNativeSeparators(made.source) + QLatin1String(": ") + file.errorString();
        all->push_back(std::move(made));
        return {};
    }

    void tell(const QString &place, const QString &what)
    {
        m_told->append(QDir::toNativeSeparators(place) + QLatin1Char(' ') + what);
    }

    QString m_root;
    QString m_scratch;
    QStringList *m_told;
    const progressFunction &m_progress;
    int m_merged = 0;
};

} // namespace

QString mergeUsers(const QString &root, const QString &scratch, std::vector<change> *changes,
                   QStringList *told, const progressFunction &progress)
{
    return merger(root, scratch, told, progress).run(changes);
}

} // namespace updates
