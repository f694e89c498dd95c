// Which record of a file a reader stands in, named as an engineer knows it: "material
// 317111-00.01-00001, group Rezystory"; and faults that know their record. Costs next to nothing
// while nothing is wrong.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <string_view>
#include <vector>

class recordTrail
{
public:
    // The events of a file, in its order. Names of elements are kept as they are given, so they
    // must live as long as the element is open; values are UTF-8.
    void start(std::string_view element);
    void attribute(std::string_view name, std::string_view value);
    void end(const QByteArray &text); // what stood in the element that ends

    // The element that is open, and the one around it; empty where there is none.
    std::string_view element() const { return at(0); }
    std::string_view parent() const { return at(1); }
    // Whether some record has that element.
    static bool isRecord(std::string_view element);

    // How many elements are open; and how many are, counted from outside, up to the innermost
    // record.
    size_t depth() const { return m_open.size(); }
    size_t recordDepth() const;

    // The records that are open, the innermost first; empty outside of all.
    QString where() const;

private:
    struct level
    {
        std::string_view element;
        int kind = -1;    // place in the table of records; -1 for other elements
        int number = 0;   // among the records of its parent
        int children = 0; // records that began in it
        QByteArray name;  // what it is known by
        int rank = 0;     // of the field that the name came from: 1 is the best, 0 none
    };

    std::string_view at(size_t fromTheLast) const
    {
        return fromTheLast < m_open.size() ? m_open[m_open.size() - 1 - fromTheLast].element
                                           : std::string_view();
    }
    static void name(level &record, std::string_view field, std::string_view value);

    std::vector<level> m_open;
};

struct fileFault
{
    int line = 0; // from 1; 0 when unknown
    int column = 0;
    QString text;   // what is wrong, plain text
    QString record; // where, as recordTrail has it; may be empty

    // "record: text".
    QString sentence() const;
    // The same with line and column before it where they are known.
    QString placed() const;
};

// The faults of a file whose events are told here. A fault gets its record's name when the record
// ends, because only then all its fields are known.
class faultTrail : public recordTrail
{
public:
    // Faults beyond most are counted, not kept.
    explicit faultTrail(int most)
        : m_most(most)
    {
    }

    void add(int line, int column, const QString &text);
    void end(const QByteArray &text);
    // Only the first faults count.
    void forgetAfter(int count);
    // The file ended, perhaps within records.
    void finish();

    const QVector<fileFault> &faults() const { return m_faults; }
    int count() const { return m_count; }

private:
    void nameFaults();

    int m_most;
    QVector<fileFault> m_faults;
    int m_count = 0;
    // Faults in records that have not ended: their places, and how deep the record lies.
    std::vector<std::pair<int, size_t>> m_unnamed;
};
