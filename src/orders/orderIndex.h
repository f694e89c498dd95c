// The register of orders: what stands in all orders of the configured folders, so that lines are
// found and counted without opening one of them. What was read lies in a cache that may be deleted
// at any time.
#pragma once

#include "data/documentSaving.h"
#include "util/decimal.h"

#include <QDate>
#include <QHash>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class kiv_mat_zpStruct;
class ktmIndex;

// How far an order is, by what stands in its lines; that it was sent stands elsewhere.
enum class orderStage
{
    edited,
    sent,
    partlyDelivered,
    delivered,
    invoiced,
    parted // into one for each firm, which count instead
};
// For the user, and for files.
QString stageText(orderStage stage);
QString stageName(orderStage stage);

class orderIndex
{
public:
    // What is kept of a line, as the file has it.
    enum field
    {
        ktm,
        name,
        quantity,
        unit,
        price,
        cpv,
        target,
        wait,
        delivery,
        invoice,
        fieldCount
    };
    // The numbers of a line's texts.
    using line = std::array<quint32, fieldCount>;

    struct order
    {
        QString path;
        fileState state;
        QString number;
        QDate date; // of the order; when it has none, of its file
        QString target;
        QString author;
        decimal sum;     // of the lines that have a price and a quantity
        int leftOut = 0; // the others
        std::vector<line> lines;

        // Without the word whether it was sent.
        orderStage stage = orderStage::edited;
    };

    // cache: a file for what was read; empty for none. One that cannot be used is made anew.
    explicit orderIndex(QString cache = {});
    ~orderIndex();
    orderIndex(const orderIndex &) = delete;
    orderIndex &operator=(const orderIndex &) = delete;
    // The cache of the program that works in this data folder.
    static QString usualCache();

    // Reads the orders of the folders, without those below: each file that is new or has changed
    // since it was read last. A file that is no order, or cannot be read, has no part in it.
    // progress is told files; false when it cancelled: then what is known so far stays.
    bool update(const QStringList &folders, const progressFunction &progress = {});

    // Another number when other orders were read.
    int revision() const { return m_revision; }

    // The latest first.
    const std::vector<order> &orders() const { return m_orders; }
    const QString &text(quint32 number) const { return m_texts[number]; }
    // A text of a line.
    const QString &textOf(const line &of, field which) const { return m_texts[of[which]]; }

    // A line by its order's and its own number.
    struct place
    {
        int order;
        int line;
        bool operator==(const place &) const = default;
    };
    struct foundLines
    {
        std::vector<place> lines; // the first of them, the latest orders first
        int total = 0;
        int orders = 0; // with such lines
    };
    // The lines that hold all of the words, each in one of: KTM, name, target, delivery, invoice, a
    // part number of the material, or the order's number, date, target or author. Small and
    // capital letters and diacritics are one. No words find nothing.
    foundLines search(const QString &words, int most) const;
    // Has part numbers count for searches, too. To be told again when the materials changed.
    void setMaterials(const ktmIndex &materials);

    // The lines of a KTM, the latest first.
    std::vector<place> linesOf(const QString &of) const;

private:
    struct file
    {
        fileState state;
        bool isOrder = false;
        order content;
    };
    class store;

    quint32 numberOf(const QString &text);
    order read(const QString &path, const fileState &state, bool *isOrder);
    void arrange();
    void prepareSearch() const;
    void prepareKtms() const;

    std::unique_ptr<store> m_store;
    std::vector<QString> m_texts;
    QHash<QString, quint32> m_numbers;
    QHash<QString, file> m_files; // by path, without the orders' lines
    std::vector<order> m_orders;
    int m_revision = 0;
    // By number of a KTM: folded part numbers.
    QHash<quint32, std::string> m_partNumbers;
    // The folded texts, each between line ends, and where each begins.
    mutable std::string m_folded;
    mutable std::vector<size_t> m_begins;
    // The lines of each KTM: where they begin in m_byKtm, by number of the text.
    mutable std::vector<quint32> m_ktmBegins;
    mutable std::vector<place> m_byKtm;
};

// Its stage by its lines.
orderStage stageOf(int lines, int delivered, int invoiced);

// The number that follows those in use, the latest given first: the counter of its pattern one
// higher than the highest ("ZP/12/2026" to "ZP/13/2026"), from 1 in a new year; a date in it
// becomes today's. Empty when none has a counter.
QString nextOrderNumber(const QStringList &used, const QDate &today);

// What the orders say of a material.
struct orderedMaterial
{
    // Ordered, and not invoiced yet, by unit.
    std::vector<std::pair<QString, decimal>> onTheWay;
    std::vector<orderIndex::place> open; // the lines of it
    // The latest order with a price.
    std::optional<orderIndex::place> last;
};
// isOrdered says whether an order counts as ordered. except is the path of an order that counts for
// nothing, such as the one that is open.
orderedMaterial orderedOf(const orderIndex &index, const QString &ktm,
                          const std::function<bool(const orderIndex::order &)> &isOrdered,
                          const QString &except = {});
