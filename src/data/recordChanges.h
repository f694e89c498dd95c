// Changes of a document's records: noted one by one as they are made, and made again in a document
// that was read anew, also when others changed its file meanwhile.
#pragma once

#include "data/xmlData.h"

#include <QHash>
#include <QPair>

#include <memory>
#include <vector>

class QJsonObject;
class documentStruct;
struct fileKind;

// The records that lie equally deep in a kind of document.
class recordLevel
{
public:
    recordLevel(int levelAbove, bool isOneOfAName)
        : above(levelAbove)
        , oneOfAName(isOneOfAName)
    {
    }
    recordLevel(const recordLevel &) = delete;
    recordLevel &operator=(const recordLevel &) = delete;
    virtual ~recordLevel() = default;

    const int above; // the level that these lie below; -1 for the document itself
    const bool oneOfAName;

    // What a record is found by and told as.
    virtual QString name(const xmlData *record) const = 0;
    // Its content, without the records below it.
    virtual QByteArray content(const xmlData *record) const = 0;
    virtual std::unique_ptr<xmlData> read(const QByteArray &content) const = 0;
    // Whether other records lie below.
    virtual bool isFolder() const = 0;

    // The records of one parent, which is one of the level above or the document.
    virtual int count(xmlData *parent) const = 0;
    virtual xmlData *at(xmlData *parent, int place) const = 0;
    virtual void put(xmlData *parent, int place, std::unique_ptr<xmlData> record) const = 0;
    virtual void remove(xmlData *parent, int place) const = 0;
    // Gives it another content; what lies below stays. Returns the record in its place.
    virtual xmlData *change(xmlData *parent, int place, std::unique_ptr<xmlData> to) const = 0;
    // -1 when it is not there; hint is where to look first.
    int placeOf(xmlData *parent, const xmlData *record, int hint = 0) const;
};

// Empty for kinds whose changes are not noted.
const std::vector<std::unique_ptr<recordLevel>> &levelsOf(const fileKind &kind);

class recordChanges
{
public:
    explicit recordChanges(const fileKind &kind);

    // Told before and after a record's content changes; nothing is noted when it is the same.
    void willChange(size_t level, const xmlData *record);
    void changed(size_t level, const xmlData *record);
    // Told after a record took its place, and before it is taken out.
    void put(size_t level, xmlData *parent, const xmlData *record, int hint);
    void willTake(size_t level, const xmlData *record);

    // What was noted since this was called last, a line for each change.
    QByteArray takeLines() { return std::exchange(m_lines, {}); }
    void clear();

    struct outcome
    {
        int made = 0;        // records that are now as they were noted
        QStringList refused; // the names of those that others changed
    };
    enum documentKind
    {
        asItWas,         // what they were made in
        settled,         // others changed it, and the user wants what was noted all the same
        changedByOthers, // a record that others changed, too, stays as it is
    };
    // Makes noted changes again. Further changes can be noted then.
    outcome repeat(const QByteArray &lines, documentStruct &document, documentKind kind);
    // How many records such lines are about.
    static int countIn(const QByteArray &lines);

private:
    struct state
    {
        QString name;
        QByteArray content;
    };
    state stateOf(size_t level, const xmlData *record) const;
    QJsonObject begin(const char *what, size_t level, const xmlData *record, const state &was);
    QJsonObject reference(size_t level, const xmlData *record) const;
    void note(const QJsonObject &line);

    const std::vector<std::unique_ptr<recordLevel>> &m_levels;
    QByteArray m_lines;
    QHash<const xmlData *, int> m_numbers; // of the records that were changed
    QHash<const xmlData *, state> m_before;
    int m_lastNumber = 0;
};
