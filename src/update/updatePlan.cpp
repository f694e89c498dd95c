#include "update/updatePlan.h"

#include "data/vocabulary.h"
#include "tools/zip_compress.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace updates {

namespace {

const QString scratchPrefix = QStringLiteral("{temp}/");

// Names that are devices on Windows, with any ending.
bool isDevice(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\..*)?$"),
        QRegularExpression::CaseInsensitiveOption);
    return form.match(name).hasMatch();
}

QString faultOfName(const QString &name)
{
    if (name == QLatin1String(".."))
        return QCoreApplication::translate("updates", "%1 leads out of the folder");
    if (name.contains(QLatin1Char(':')) || isDevice(name) || name.endsWith(QLatin1Char('.'))
        || name.endsWith(QLatin1Char(' ')))
        return QCoreApplication::translate("updates", "%1 is no name of a file");
    for (const QChar c : name)
        if (c.unicode() < 0x20)
            return QCoreApplication::translate("updates", "%1 is no name of a file");
    return {};
}

// The parts of a relative path; nothing, with the reason, when it is none.
std::optional<QStringList> partsOf(const QString &path, QString *fault)
{
    QString plain = path;
    plain.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (plain.startsWith(QLatin1Char('/'))) {
        *fault = QCoreApplication::translate("updates", "%1 leads out of the folder").arg(path);
        return {};
    }
    QStringList parts;
    for (const QString &name : plain.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (name == QLatin1String("."))
            continue;
        if (const QString wrong = faultOfName(name); !wrong.isEmpty()) {
            *fault = wrong.arg(path);
            return {};
        }
        parts.append(name);
    }
    return parts;
}

// Of the folders above it that are there none may lead out of root.
bool staysBelow(const QString &root, const QStringList &parts)
{
    const QString base = QFileInfo(root).canonicalFilePath();
    QString path = root;
    for (const QString &name : parts) {
        path += QLatin1Char('/') + name;
        const QFileInfo info(path);
        if (info.isSymLink() && !info.exists())
            return false;
        if (!info.exists())
            return true;
        const QString real = info.canonicalFilePath();
        if (real != base && !real.startsWith(base + QLatin1Char('/')))
            return false;
    }
    return true;
}

class planner
{
public:
    planner(const kiv_UpdateStruct &script, const planMeans &with)
        : m_script(script)
        , m_with(with)
    {
    }

    plan make()
    {
        int number = 0;
        for (const auto &command : m_script.commands) {
            if (m_with.progress && !m_with.progress(number, int(m_script.commands.size()))) {
                m_plan.isCancelled = true;
                return std::move(m_plan);
            }
            ++number;
            const QString fault = carryOut(*command);
            if (fault.isEmpty())
                continue;
            m_plan.faults.append(QCoreApplication::translate("updates", "Command %1, \"%2\": %3")
                                     .arg(QString::number(number), command->name, fault));
            // What comes after it may need what it should have done.
            return std::move(m_plan);
        }
        settle();
        return std::move(m_plan);
    }

private:
    using handler = QString (planner::*)(const commandStruct &);

    QString carryOut(const commandStruct &command)
    {
        static const std::vector<std::pair<QLatin1String, handler>> handlers{
            {updateCommand::downloadFile, &planner::download},
            {updateCommand::extractZip, &planner::extract},
            {updateCommand::copyFile, &planner::copy},
            {updateCommand::removeFile, &planner::removeFile},
            {updateCommand::removeDirectory, &planner::removeDirectory},
            {updateCommand::closeAndRunExe, &planner::restart},
            {updateCommand::openFile, &planner::open},
            {updateCommand::openHelp, &planner::afterwards},
            {updateCommand::loadPrevConfig, &planner::afterwards},
        };
        for (const auto &[name, run] : handlers)
            if (command.name == name)
                return (this->*run)(command);
        return QCoreApplication::translate("updates", "it is not known");
    }

    // --- Paths

    // A path of the scratch folder or below root; of the latter also as its place.
    QString resolve(const QString &path, QString *fault, QString *place = nullptr)
    {
        if (path.startsWith(scratchPrefix)) {
            const auto parts = partsOf(path.mid(scratchPrefix.size()), fault);
            if (!parts)
                return {};
            if (parts->isEmpty()) {
                *fault =
                    QCoreApplication::translate("updates", "%1 is no name of a file").arg(path);
                return {};
            }
            return m_with.scratch + QLatin1String("/temp/") + parts->join(QLatin1Char('/'));
        }
        const QString found = placeIn(path, m_with.root, fault);
        if (place)
            *place = found;
        return found.isEmpty() ? QString() : m_with.root + QLatin1Char('/') + found;
    }
    QString newStaged()
    {
        const QString path = m_with.scratch + QLatin1String("/new/") + QString::number(++m_staged);
        QDir().mkpath(QFileInfo(path).absolutePath());
        return path;
    }
    bool isUnwanted(const QString &path) const { return m_unwanted.contains(path); }

    // A file comes to that place; staged lies in the scratch folder.
    void install(const QString &place, const QString &staged) { m_changes[place] = staged; }
    // A file comes to a path of the script, written by write, which gives the reason when it is
    // not.
    QString bring(const QString &path, const std::function<QString(const QString &staged)> &write)
    {
        QString fault;
        QString place;
        const QString target = resolve(path, &fault, &place);
        if (target.isEmpty())
            return fault;
        const QString staged = place.isEmpty() ? target : newStaged();
        QDir().mkpath(QFileInfo(staged).absolutePath());
        QFile::remove(staged);
        fault = write(staged);
        if (fault.isEmpty() && !place.isEmpty())
            install(place, staged);
        return fault;
    }
    // The place that a command names, which is not in the scratch folder.
    QString placeOf(const commandStruct &command, QString *fault)
    {
        QString place;
        if (!resolve(command.from, fault, &place).isEmpty() && place.isEmpty())
            *fault = QCoreApplication::translate("updates", "%1 leads out of the folder")
                         .arg(command.from);
        return place;
    }

    // --- Commands

    QString download(const commandStruct &command)
    {
        if (m_with.unwanted.contains(command.from)) {
            m_unwanted.insert(command.to);
            return {};
        }
        return bring(command.to,
                     [&](const QString &staged) { return m_with.fetch(command.from, staged); });
    }

    QString extract(const commandStruct &command)
    {
        if (isUnwanted(command.from))
            return {};
        QString fault;
        const QString archive = source(command.from, &fault);
        if (archive.isEmpty())
            return fault;
        const auto folder = partsOf(command.to, &fault);
        if (!folder)
            return fault;
        const QString into = newStaged();
        zip_compress runner;
        QString said;
        QObject::connect(&runner, &zip_compress::updateProgress, &runner,
                         [&said](const QString &text) { said = text; });
        runner.decompress(archive, into);
        if (runner.wait() != 0)
            return QCoreApplication::translate("updates", "%1 cannot be unpacked: %2")
                .arg(command.from, said);
        QDirIterator files(into, QDir::Files | QDir::Hidden | QDir::System,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            const QString place = placeIn(
                (*folder + QStringList{QDir(into).relativeFilePath(file)}).join(QLatin1Char('/')),
                m_with.root, &fault);
            if (place.isEmpty())
                return fault;
            if (files.fileInfo().isSymLink() || !files.fileInfo().isFile())
                return QCoreApplication::translate("updates", "%1 is no file").arg(place);
            install(place, file);
        }
        return {};
    }

    // Where the bytes of a path are: what an earlier command brought counts.
    QString source(const QString &path, QString *fault)
    {
        QString place;
        const QString found = resolve(path, fault, &place);
        if (found.isEmpty())
            return {};
        const QString real =
            !place.isEmpty() && m_changes.contains(place) ? m_changes[place] : found;
        if (!real.isEmpty() && QFileInfo(real).isFile())
            return real;
        *fault = QCoreApplication::translate("updates", "%1 is missing").arg(path);
        return {};
    }

    QString copy(const commandStruct &command)
    {
        if (isUnwanted(command.from))
            return {};
        QString fault;
        const QString from = source(command.from, &fault);
        if (from.isEmpty())
            return fault;
        return bring(command.to, [&from](const QString &staged) {
            QFile file(from);
            return file.copy(staged) ? QString()
                                     : QDir::toNativeSeparators(staged) + QLatin1String(": ")
                                           + file.errorString();
        });
    }

    QString removeFile(const commandStruct &command)
    {
        QString fault;
        QString place;
        const QString path = resolve(command.from, &fault, &place);
        if (path.isEmpty())
            return fault;
        if (place.isEmpty())
            QFile::remove(path);
        else if (QFileInfo(path).isDir())
            return QCoreApplication::translate("updates", "%1 is a folder").arg(command.from);
        else
            m_changes[place] = QString();
        return {};
    }

    QString removeDirectory(const commandStruct &command)
    {
        QString fault;
        QString place;
        const QString path = resolve(command.from, &fault, &place);
        if (path.isEmpty() || place.isEmpty())
            return fault;
        for (auto one = m_changes.begin(); one != m_changes.end(); ++one)
            if (one.key().startsWith(place + QLatin1Char('/')))
                one.value().clear();
        QDirIterator all(path,
                         QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                         QDirIterator::Subdirectories);
        QStringList folders{place};
        while (all.hasNext()) {
            all.next();
            const QString below = QDir(m_with.root).relativeFilePath(all.filePath());
            if (all.fileInfo().isDir() && !all.fileInfo().isSymLink())
                folders.append(below);
            else
                m_changes[below] = QString();
        }
        // The inner ones first.
        std::sort(folders.begin(), folders.end(), [](const QString &one, const QString &other) {
            return one.size() > other.size();
        });
        m_plan.foldersToRemove += folders;
        return {};
    }

    QString restart(const commandStruct &command)
    {
        QString fault;
        m_plan.restartWith = placeOf(command, &fault);
        return fault;
    }
    QString open(const commandStruct &command)
    {
        QString fault;
        m_plan.toOpen.append(placeOf(command, &fault));
        return fault;
    }
    QString afterwards(const commandStruct &command)
    {
        QString fault;
        m_plan.afterwards.emplace_back(command.name, placeOf(command, &fault));
        return fault;
    }

    // --- The whole

    bool isNeeded(const QString &place, const QString &staged) const
    {
        return !staged.isEmpty() || QFileInfo::exists(m_with.root + QLatin1Char('/') + place);
    }
    void settle()
    {
        std::vector<updateJournal::change> last;
        for (auto one = m_changes.constBegin(); one != m_changes.constEnd(); ++one) {
            if (!isNeeded(one.key(), one.value()))
                continue;
            const updateJournal::change made{one.key(), one.value(), !isUsers(one.key())};
            // A program that is begun meanwhile finds the rest in place.
            (one.key() == m_plan.restartWith ? last : m_plan.changes).push_back(made);
        }
        m_plan.changes.insert(m_plan.changes.end(), last.begin(), last.end());
    }

    const kiv_UpdateStruct &m_script;
    const planMeans &m_with;
    QMap<QString, QString> m_changes; // staged file, or nothing, by place
    QSet<QString> m_unwanted;         // paths that are not there because nobody wanted them
    int m_staged = 0;
    plan m_plan;
};

} // namespace

QString placeIn(const QString &path, const QString &root, QString *fault)
{
    const auto parts = partsOf(path, fault);
    if (!parts)
        return {};
    if (parts->isEmpty()
        || parts->first().compare(QLatin1String("update"), Qt::CaseInsensitive) == 0) {
        *fault = QCoreApplication::translate("updates", "%1 may not be changed").arg(path);
        return {};
    }
    const QString place = parts->join(QLatin1Char('/'));
    if (!staysBelow(root, *parts)) {
        *fault = QCoreApplication::translate("updates", "%1 leads out of the folder").arg(path);
        return {};
    }
    const QFileInfo info(root + QLatin1Char('/') + place);
    if (info.isSymLink() || (info.exists() && !info.isFile() && !info.isDir())) {
        *fault = QCoreApplication::translate("updates", "%1 is no file").arg(path);
        return {};
    }
    return place;
}

bool isUsers(const QString &place)
{
    static const QStringList folders{QStringLiteral("_config/"), QStringLiteral("_files/"),
                                     QStringLiteral("_zp/"), QStringLiteral("_e-mail/")};
    return std::any_of(folders.begin(), folders.end(), [&place](const QString &folder) {
        return place.startsWith(folder, Qt::CaseInsensitive);
    });
}

plan planOf(const kiv_UpdateStruct &script, const planMeans &with)
{
    return planner(script, with).make();
}

} // namespace updates
