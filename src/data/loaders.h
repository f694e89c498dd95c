// Reading and writing whole files: one loader per kind of file, one writer for all.
#pragma once

#include "util/progress.h"

#include <QString>

#include <memory>

class QIODevice;
class configStruct;
class documentStruct;
class kiv_UpdateStruct;
class kiv_infoStruct;
class kiv_mat_bomStruct;
class kiv_mat_bomsStruct;
class kiv_mat_databaseStruct;
class kiv_mat_firmStruct;
class kiv_mat_zpStruct;
class xmlData;
struct fileKind;

// Each fills a freshly constructed record; what the file is silent about keeps its default.
// Results: 0 read to the end without a parse error (also when the root element is another kind's:
// then nothing is read), -1 the file cannot be opened or is no XML (what was read so far stays in
// the record), 1 (loadConfig only) refused by its schema, nothing read. No loader but loadConfig
// validates: whoever opens a user's file validates first. What a file holds and no record takes is
// noted in documentStruct::leftOut and told in a line of the errors window.
int loadZp(const QString &filePath, kiv_mat_zpStruct *record);
int loadDatabase(const QString &filePath, kiv_mat_databaseStruct *record);
int loadFirm(const QString &filePath, kiv_mat_firmStruct *record);
int loadConfig(const QString &filePath, configStruct *record);
int loadBom(const QString &filePath, kiv_mat_bomStruct *record);
int loadBoms(const QString &filePath, kiv_mat_bomsStruct *record);
int loadInfo(const QString &filePath, kiv_infoStruct *record);
int loadUpdate(const QString &filePath, kiv_UpdateStruct *record);

// The same for a record whose kind is known only at run time. Sets error, if given, to the parser's
// message with its line and column. progress is told the bytes read; when it cancels, the result is
// -1.
int loadDocument(const QString &filePath, documentStruct *record, QString *error = nullptr,
                 const progressFunction &progress = {});

// The same, without a line in the errors window: for what the caller tells of by itself.
int loadQuietly(const QString &filePath, documentStruct *record, QString *error = nullptr,
                const progressFunction &progress = {});

// An empty record of that kind.
std::unique_ptr<documentStruct> newDocument(const fileKind &kind);

// Which documents are written that their schema refuses, so that they would not open again. It is
// looked at before the old file is replaced.
enum class saveRule
{
    onlyGood,    // none
    notOverGood, // such as replace no file, or one that would not open either
    whatever     // all, without a look
};

// Writes a record as a file, creating missing folders. Returns the record's own result; -1, with
// the reason in error, when the file cannot be written whole, a text cannot be stored as XML, or
// the rule (notOverGood in saveXml) forbids it. After a negative result the old file is as it was.
// Nothing lets events through but progress, which is told how far writing and looking are; when it
// cancels, the result is -1.
int saveXml(const QString &filePath, const xmlData *record, const progressFunction &progress = {});
int saveXmlNoEvents(const QString &filePath, const xmlData *record, QString *error = nullptr,
                    const progressFunction &progress = {}, saveRule rule = saveRule::notOverGood);
