// What the subcommands of kivzp-cli have in common: exit codes, parsing, output, and the databases
// given with -d.
#pragma once

#include "data/kiv_mat_databaseStruct.h"
#include "data/ktmIndex.h"
#include "data/recordTrail.h"

#include <QCommandLineParser>
#include <QStringList>
#include <QTextStream>

class configStruct;
class materialUses;

namespace cli {

enum exitCode
{
    done = 0,
    refused = 1,   // the input was refused, or the answer is no
    wrongCall = 2, // unknown command, option or number of arguments
    notWritten = 3 // an output file could not be written
};

// One subcommand. run() gets the arguments that follow its name.
struct subcommand
{
    const char *name;
    const char *summary; // English source text, context "cli"
    int (*run)(const QStringList &arguments);
};

// Standard output and standard error, in UTF-8.
QTextStream &out();
QTextStream &err();

// Parses the arguments of a subcommand. fileNames: the positional arguments as shown in the help;
// minimum and maximum: how many there may be (maximum -1: any number).
class parser : public QCommandLineParser
{
public:
    parser(const subcommand &command, const QString &fileNames, int minimum, int maximum);

    // True when the command shall run. Otherwise the help or the fault has been printed and code()
    // is the exit code.
    bool accept(const QStringList &arguments);
    int code() const { return m_code; }

private:
    QString m_name;
    int m_minimum;
    int m_maximum;
    int m_code = done;
};

// Validates a file against its kind's schema and prints the faults to standard error, each as
// file:line:column: text. True when it is valid.
bool validateFile(const QString &path);

// Prints faults of a file to standard error, each as file:line:column: text, and how many more
// there are.
void printFaults(const QString &path, const QVector<fileFault> &faults, int count);

// Validates, then reads a material database. Prints what is wrong and returns null when it is
// refused.
std::unique_ptr<kiv_mat_databaseStruct> readDatabase(const QString &path);

// Validates a file and reads it. isNot says of a file of another kind what it is not. Prints what
// is wrong; false when the file was refused.
bool readFile(const QString &path, documentStruct *record, const QString &isNot);

// The files as given, with the lists of each set of BOM lists in its place; false, with the faults
// printed, when a set was refused.
bool listedFiles(const QStringList &paths, QStringList *files);
// Reads BOM lists, sets of them and orders; false, with the faults printed, when one cannot be.
bool readUses(const QStringList &paths, materialUses *uses);

// Reads a file of whatever kind, valid or not. Prints what is wrong and returns null when it
// cannot.
std::unique_ptr<documentStruct> readAny(const QString &path);

// Writes a document. A file that it replaces goes to the earlier versions, as when a window saves,
// and who has it open is named. Prints why it cannot be written; returns the exit code.
int writeDocument(const QString &path, const documentStruct &document);

// Reads the program's configuration. Prints that it is none; false when it was refused.
bool loadConfiguration(configStruct *config);

// Prints "command: fault" to standard error and returns the code for a wrong call.
int refuseCall(const subcommand &command, const QString &fault);

// The option -d, which may be given several times; help tells what the databases are for.
QCommandLineOption databaseOption(const QString &help);

// Writes a page as HTML or PDF, as the ending of the file says; title stands at the foot of printed
// pages. isPageFile says whether the ending is one of the two.
bool isPageFile(const QString &path);
int writePage(const QString &html, const QString &path, const QString &title);

// The materials of several database files.
class databaseSet
{
public:
    // Each as readDatabase(); false when one was refused.
    bool load(const QStringList &paths);

    const ktmIndex &index() const { return m_index; }
    const std::vector<std::unique_ptr<kiv_mat_databaseStruct>> &all() const { return m_databases; }

private:
    std::vector<std::unique_ptr<kiv_mat_databaseStruct>> m_databases;
    ktmIndex m_index;
};

// The option -d DB. description: the English source text, context "cli".
QCommandLineOption databaseOption(const char *description);

// The option -o OUT. description: the English source text, context "cli".
QCommandLineOption outputOption(const char *description);

// Prints that the file cannot be written, and why; returns that exit code.
int cannotWrite(const QString &path, const QString &reason = {});

// Prints lines of HTML to standard error as plain text.
void printNotes(const QStringList &htmlLines);

extern const subcommand validateCommand;
extern const subcommand infoCommand;
extern const subcommand resaveCommand;
extern const subcommand repairCommand;
extern const subcommand diffCommand;
extern const subcommand versionsCommand;
extern const subcommand reportCommand;
extern const subcommand findCommand;
extern const subcommand checkCommand;
extern const subcommand checkMaterialsCommand;
extern const subcommand materialCommand;
extern const subcommand bomCsvCommand;
extern const subcommand bomReportCommand;
extern const subcommand bomOrderCommand;
extern const subcommand bomShortageCommand;
extern const subcommand bomBasketCommand;
extern const subcommand bomImportCommand;
extern const subcommand bomDiffCommand;
extern const subcommand ordersCommand;
extern const subcommand planCommand;
extern const subcommand deliverCommand;
extern const subcommand offersCommand;
extern const subcommand requestCommand;
extern const subcommand mailCommand;
extern const subcommand helpersCommand;
extern const subcommand updateCommandOf;
extern const subcommand publishCommand;
extern const subcommand cloneCommand;
extern const subcommand syncCommand;
extern const subcommand historyCommand;
extern const subcommand downloadCommand;
extern const subcommand uploadCommand;
extern const subcommand packCommand;
extern const subcommand unpackCommand;
extern const subcommand altiumCommand;
extern const subcommand groupsCommand;
extern const subcommand duplicatesCommand;
extern const subcommand emptyCommand;
extern const subcommand checkUrlsCommand;
extern const subcommand examineLinksCommand;
extern const subcommand dbReportCommand;
extern const subcommand parseListingCommand;
extern const subcommand mergeCommand;
extern const subcommand loadCpvCommand;
extern const subcommand moveCpvCommand;
extern const subcommand setFieldCommand;
extern const subcommand replaceMaterialCommand;
extern const subcommand checkNipCommand;
extern const subcommand firmUsesCommand;
extern const subcommand firmMergeCommand;
extern const subcommand bomReserveCommand;
extern const subcommand bomBuiltCommand;
extern const subcommand reservationsCommand;

} // namespace cli
