// What the benchmarks share: the large files they read, and processes measured from outside.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace benchSupport {

// A generated database of so many materials; made once and kept in the build folder.
QString generatedDatabase(int materials);

// Copies a folder with all its files.
void copyFolder(const QString &from, const QString &to);

// An unpacked real database: "db_100k" has 100,000 materials; empty when KIVZP_REAL_DATA has none.
QString realDatabase(const QString &name = QStringLiteral("db_100k"));

// Of this process, as it is now; what it freed is given back before.
qint64 residentBytes();

struct processCost
{
    double seconds = 0;
    double megabytes = 0; // peak resident memory
    int exitCode = -1;
};
// Runs a program to its end, its output dropped.
processCost measure(const QStringList &command);

} // namespace benchSupport
