#include "database/cpvOperations.h"

#include "data/XmlValidator.h"
#include "data/kiv_mat_databaseStruct.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QMultiHash>

namespace {

QString translated(const char *text) { return QCoreApplication::translate("cpvOperations", text); }

// Checks codes; each one once, since every check asks the schema.
class cpvChecker
{
public:
    bool good(const QString &code)
    {
        const auto known = m_known.constFind(code);
        return known != m_known.constEnd() ? *known : *m_known.insert(code, checkCpv(code));
    }

private:
    QHash<QString, bool> m_known;
};

// A caption with the lines below it; nothing when there are none.
QStringList captioned(const char *caption, const QStringList &lines)
{
    if (lines.isEmpty())
        return {};
    return QStringList(translated(caption).toHtmlEscaped() + QLatin1String("<br>")) + lines;
}

QString inBlanks(const QString &text)
{
    const QChar blank(QChar::Nbsp);
    return blank + text + blank;
}

// "<b>group</b>&nbsp;[&nbsp;code&nbsp;]<br>"
QString groupLine(const QString &group, const QString &code)
{
    return messages::failed({}, group, inBlanks(code));
}

constexpr const char *syntaxError = QT_TRANSLATE_NOOP("cpvOperations", "CPV syntax error");

} // namespace

cpvResult<groupChange> loadCpvForGroups(const QString &path, kiv_mat_databaseStruct &database,
                                        const progressFunction &progress)
{
    cpvResult<groupChange> result;
    QStringList lines;
    if (!QFileInfo(path).isFile() || !files::readLines(path, &lines)) {
        const QString reason =
            translated(QT_TRANSLATE_NOOP("cpvOperations", "the file cannot be read"));
        result.problems.append(messages::failed(messages::fileCorrupted(), path, inBlanks(reason)));
        return result;
    }
    QMultiHash<QString, d_groupStruct *> groups;
    for (const auto &group : database.groups)
        groups.insert(group->name, group.get());

    cpvChecker checker;
    QHash<d_groupStruct *, QString> codes; // the last line of a group counts
    QStringList wrong;
    QStringList unknown;
    progressSteps steps(progress, lines.size());
    for (const QString &line : lines) {
        const QStringList parts = line.split(QLatin1Char('\t'));
        const QString code =
            parts.value(1).split(QLatin1Char(' '), Qt::SkipEmptyParts).value(0).trimmed();
        const QList<d_groupStruct *> named = groups.values(parts.at(0));
        if (named.isEmpty()) {
            if (!line.trimmed().isEmpty())
                unknown.append(groupLine(parts.at(0), code));
        } else if (!checker.good(code)) {
            wrong.append(groupLine(parts.at(0), code));
        } else {
            for (d_groupStruct *group : named)
                codes.insert(group, code);
        }
        if (!steps.next()) {
            result.cancelled = true;
            return result;
        }
    }
    for (const auto &group : database.groups)
        if (codes.contains(group.get()) && codes.value(group.get()) != group->cpv)
            result.changes.push_back(
                {group.get(), &d_groupStruct::cpv, group->cpv, codes.value(group.get())});
    result.problems =
        captioned(syntaxError, wrong)
        + captioned(QT_TRANSLATE_NOOP("cpvOperations", "Group does not exist"), unknown);
    return result;
}

cpvResult<materialChange> moveCpvToMaterials(kiv_mat_databaseStruct &database,
                                             const progressFunction &progress)
{
    cpvResult<materialChange> result;
    cpvChecker checker;
    QStringList wrong;
    progressSteps steps(progress, qint64(database.groups.size()));
    for (const auto &group : database.groups) {
        if (!group->cpv.isEmpty() && !checker.good(group->cpv)) {
            wrong.append(groupLine(group->name, group->cpv));
        } else if (!group->cpv.isEmpty()) {
            for (const auto &material : group->items)
                if (material->d_cpv != group->cpv)
                    result.changes.push_back(
                        {material.get(), &materialStruct::d_cpv, material->d_cpv, group->cpv});
        }
        if (!steps.next()) {
            result.changes.clear();
            result.cancelled = true;
            return result;
        }
    }
    result.problems = captioned(syntaxError, wrong);
    return result;
}

QUrl cpvIndexFile()
{
    const QString name = QStringLiteral("_files/Wspolny-Slownik-Zamowien.pdf");
    for (const QString &path : {paths::data(name), paths::beside(name)})
        if (QFileInfo(path).isFile())
            return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
    return {};
}

QUrl cpvIndexPage() { return QUrl(QStringLiteral("https://ted.europa.eu/en/simap/cpv")); }
