#include "cli/bomLists.h"

#include "cli/arguments.h"
#include "data/reservationsFile.h"

#include <QCoreApplication>

namespace cli {

namespace {

constexpr int setsAtMost = 1000000;

}

bool readBomList(const QString &path, kiv_mat_bomStruct *bom)
{
    return readFile(path, bom, QCoreApplication::translate("cli", "is no BOM list"));
}

bool listsWithSets::parse(const QStringList &arguments, QString *fault)
{
    for (const QString &argument : arguments) {
        const int sign = argument.lastIndexOf(QLatin1Char('='));
        bool isNumber = false;
        const int sets = argument.mid(sign + 1).toInt(&isNumber);
        if (sign <= 0 || !isNumber || sets < 0 || sets > setsAtMost) {
            *fault = QCoreApplication::translate(
                         "cli", "%1 is not BOM=SETS with a number of sets from 0 to %2")
                         .arg(argument)
                         .arg(setsAtMost);
            return false;
        }
        add(argument.left(sign), sets);
    }
    return true;
}

void listsWithSets::add(const QString &path, int sets)
{
    m_paths.append(path);
    m_sets.push_back(sets);
}

bool listsWithSets::read()
{
    for (int i = 0; i < m_paths.size(); ++i) {
        m_boms.push_back(std::make_unique<kiv_mat_bomStruct>());
        if (!readBomList(m_paths.at(i), m_boms.back().get()))
            return false;
        lists.push_back({m_boms.back().get(), m_sets[size_t(i)]});
    }
    return true;
}

QCommandLineOption reservationsOption()
{
    return {{QStringLiteral("r"), QStringLiteral("reservations")},
            QCoreApplication::translate("cli", "The file of what is reserved for boards."),
            QStringLiteral("FILE")};
}

bool isReadable(reservationsFile &file)
{
    file.now();
    if (!file.fault().isEmpty())
        err() << file.path() << ": " << file.fault() << '\n' << Qt::flush;
    return file.fault().isEmpty();
}

void warnOfUncounted(const bomOperations::demand &of)
{
    for (const materialStruct *line : of.uncounted)
        err() << QCoreApplication::translate("cli", "no quantity, left out") << ": "
              << QString(line->d_ktm + QLatin1Char(' ') + line->d_name).simplified() << '\n';
    err() << Qt::flush;
}

} // namespace cli
