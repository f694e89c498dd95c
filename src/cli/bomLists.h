// BOM lists as arguments of subcommands, each with its number of sets, and the file of what is
// reserved for boards.
#pragma once

#include "bom/bomOperations.h"

#include <QCommandLineOption>

class reservationsFile;

namespace cli {

// Reads the file of a BOM list; false, printed, when it is none.
bool readBomList(const QString &path, kiv_mat_bomStruct *bom);

// The lists given as BOM=SETS, or added one by one.
class listsWithSets
{
public:
    // False, with the fault, when an argument is not of that form. The last "=" counts: a file may
    // have one in its name.
    bool parse(const QStringList &arguments, QString *fault);
    void add(const QString &path, int sets);
    // Prints what is wrong; false when one was refused.
    bool read();

    std::vector<bomOperations::bomSets> lists;

private:
    QStringList m_paths;
    std::vector<int> m_sets;
    std::vector<std::unique_ptr<kiv_mat_bomStruct>> m_boms;
};

// The option --reservations FILE.
QCommandLineOption reservationsOption();
// Whether the file can be read, or is none yet; prints why it cannot.
bool isReadable(reservationsFile &file);

// Prints which lines of lists are in no need, to standard error.
void warnOfUncounted(const bomOperations::demand &of);

} // namespace cli
