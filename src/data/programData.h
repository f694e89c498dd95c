// The data files that the program works with, as the configuration names them: firm register, four
// material databases, set of BOM lists. One instance for the whole run.
#pragma once

#include "data/configStruct.h"
#include "data/documentSaving.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/ktmIndex.h"
#include "data/materialSearch.h"
#include "data/orderedBefore.h"
#include "data/reservationsFile.h"
#include "util/progress.h"

#include <array>

class programData
{
public:
    static programData &instance();

    // In the order in which they are loaded and searched.
    enum databaseKind
    {
        warehouse,
        service,
        mechanics,
        author,
        databaseCount
    };

    // Each reads one file. A file that is missing or invalid is listed in the errors window, with
    // the place of its first fault; loading goes on without it. A missing one is made anew with
    // default content, a corrupt one stays as it is. The configuration is read first: without it no
    // other file has a name. A database or the BOM set is left out when its LOAD_ option says no.
    // The folder for backups is settled with the configuration.
    void loadConfiguration();
    void loadFirm(const progressFunction &progress = {});
    void loadDatabase(databaseKind kind, const progressFunction &progress = {});
    void loadBoms();
    // The set's file as it is now, to be put in use; null, with the fault listed, when it cannot be
    // read.
    std::unique_ptr<kiv_mat_bomsStruct> readBoms();
    void putInUse(std::unique_ptr<kiv_mat_bomsStruct> boms);
    // A loaded database's file as it is now, whatever the options say, to be put in use; without a
    // database when it cannot be read, which is listed, or when that was cancelled.
    struct readDatabase
    {
        std::unique_ptr<kiv_mat_databaseStruct> database;
        fileState state; // before it was read
    };
    readDatabase readAgain(databaseKind kind, const progressFunction &progress = {});
    void putInUse(databaseKind kind, readDatabase read);
    // The file of a database as it was when it was read or, once it is told, written.
    fileState &fileOf(databaseKind kind) { return m_files[kind]; }
    fileState &fileOfBoms() { return m_fileOfBoms; }

    // Whether the schema of a kind is there. The first one that is missing is listed.
    bool schemaIsThere(const fileKind &kind);

    // Puts another configuration in use; false, with the old one kept, when the file cannot be
    // read.
    bool replaceConfiguration(const QString &path);

    configStruct &config() { return *m_config; }
    kiv_mat_firmStruct &firm() { return *m_firm; }
    kiv_mat_databaseStruct &database(databaseKind kind) { return *m_databases[kind]; }
    // All databases, in the order of their kinds.
    std::vector<const kiv_mat_databaseStruct *> databases() const;
    kiv_mat_bomsStruct &boms() { return *m_boms; }
    // The reservations that belong to the set of BOM lists.
    reservationsFile &reservations() { return m_reservations; }
    // Whether the configuration has the option and says no.
    bool isSwitchedOff(QLatin1String key) const;
    // All materials of the databases.
    ktmIndex &materials() { return m_materials; }
    materialSearch &search() { return m_search; }

    // What earlier orders say of a material; nothing until a register of orders was told. except is
    // the path of an order that does not count.
    void setOrderedLookup(orderedLookup lookup) { m_ordered = std::move(lookup); }
    orderedBefore orderedOf(const QString &ktm, const QString &except = {}) const
    {
        return m_ordered && !ktm.isEmpty() ? m_ordered(ktm, except) : orderedBefore();
    }

    // Everything empty again, as before the first load.
    void clear();

private:
    programData() { clear(); }

    bool readInto(documentStruct &record, const QString &path, const progressFunction &progress);

    std::unique_ptr<configStruct> m_config;
    std::unique_ptr<kiv_mat_firmStruct> m_firm;
    std::array<std::unique_ptr<kiv_mat_databaseStruct>, databaseCount> m_databases;
    std::array<fileState, databaseCount> m_files;
    std::unique_ptr<kiv_mat_bomsStruct> m_boms;
    fileState m_fileOfBoms;
    reservationsFile m_reservations;
    ktmIndex m_materials;
    materialSearch m_search;
    orderedLookup m_ordered;
    bool m_schemasReported = false;
};

// Checks a file against its kind's schema, or remembers that it was valid, and reads it. error, if
// given, gets the first fault with its place; showMessages shows every fault in a box. True when
// all of it was read; else the record may hold a part.
bool readChecked(const QString &path, documentStruct *record, QString *error = nullptr,
                 const progressFunction &progress = {}, bool showMessages = false);
