// What comes from outside besides files of our own: listings, lists of CPV codes, archives, what
// helpers print, pasted text, typed values, searches. The first byte says which one the rest is.
#include "commands/cellBlock.h"
#include "data/XmlValidator.h"
#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/materialSearch.h"
#include "database/cpvOperations.h"
#include "database/warehouseListing.h"
#include "fuzzSupport.h"
#include "order/orderTree.h"
#include "tools/KivScp.h"
#include "tools/curl_download.h"
#include "tools/zipEntries.h"
#include "tree/myModel.h"
#include "util/decimal.h"
#include "util/typed.h"

#include <QApplication>
#include <QDir>

namespace {

using fuzzSupport::require;

// A small database in which something can be found.
struct known
{
    kiv_mat_databaseStruct database;
    ktmIndex index;
    materialSearch search;

    known()
    {
        auto group = std::make_unique<d_groupStruct>();
        group->name = QStringLiteral("Rezystory SMD");
        for (int i = 1; i < 20; ++i) {
            auto material = std::make_unique<materialStruct>();
            material->d_ktm = QStringLiteral("317111-01.02-%1").arg(i, 5, 10, QLatin1Char('0'));
            material->d_name = QStringLiteral("RC0603 %1k").arg(i);
            material->d_description = QStringLiteral("Rezystor ż %1 kΩ ±1%").arg(i);
            material->d_price = QStringLiteral("0.%1").arg(i);
            group->items.push_back(std::move(material));
        }
        database.groups.push_back(std::move(group));
        index.add(&database);
        search.add(&database);
    }
};

void listing(known &in, const QString &text)
{
    const listingResult result = matchListing(parseListing(text), in.index);
    for (const materialChange &change : result.changes)
        require(decimal::read(change.after).has_value(), "a listing changes numbers to numbers");
}

void cpvCodes(known &in, const QByteArray &bytes)
{
    const auto result = loadCpvForGroups(fuzzSupport::written("codes.txt", bytes), in.database);
    for (const groupChange &change : result.changes)
        require(checkCpv(change.after), "only codes are taken");
}

void archive(const QByteArray &bytes)
{
    const QString path = fuzzSupport::written("a.zip", bytes);
    const auto entries = zipEntries(path);
    if (!entries)
        return;
    const QString folder = fuzzSupport::folder() + QLatin1String("/out");
    for (const zipEntry &entry : *entries)
        if (landsInside(entry, folder))
            require(QDir::cleanPath(folder + QLatin1Char('/') + entry.name).startsWith(folder),
                    "what lands inside stays inside");
    if (!isTooLarge(*entries, bytes.size()))
        unpacksAsSaid(path, QStringLiteral("x"));
}

// A runner that is told what its child says.
class listener : public KivScp::scp
{
public:
    void hear(const QByteArray &bytes, int piece, const QString &secret)
    {
        keepSecret(secret);
        channel output;
        for (int at = 0; at < bytes.size(); at += piece)
            passOn(output, bytes.mid(at, piece));
        passOn(output, {}, true);
    }
};

class download : public curl_download
{
public:
    using curl_download::log;
};

// The first byte: how much is read at once.
void helperOutput(const QByteArray &bytes)
{
    const QByteArray said = bytes.mid(1);
    const QString secret = QStringLiteral("aab");
    listener runner;
    QString heard;
    QObject::connect(&runner, &KivScp::scp::updateLog, &runner,
                     [&heard](const QString &text) { heard += text; });
    runner.hear(said, 1 + (bytes.isEmpty() ? 0 : bytes.at(0) & 7), secret);
    QString whole = QString::fromLatin1(said.constData(), said.size());
    whole.remove(QLatin1Char('\r')).remove(QLatin1Char('\n')).replace(secret, QLatin1String("***"));
    require(heard == whole, "what is read in pieces is passed on as one, without the secret");
    const QString key = runner.offeredKey();
    require(key.isEmpty() || key.size() == 50, "a key is whole");
    download file;
    file.log(heard);
}

void pasting(const QString &text)
{
    static const configStruct config;
    static const ktmIndex none;
    kiv_mat_zpStruct order;
    for (int i = 0; i < 3; ++i)
        order.orderItems.append(std::make_unique<orderItemStruct>());
    listRows<orderItemStruct> rows(orderTree::columns(config, order, none));
    myModel model(nullptr);
    rows.show(&model, &order.orderItems.items);
    model.setRecords(&rows);
    QList<int> columns;
    for (int column = 0; column < model.columnCount(); ++column)
        columns.append(column);
    const QByteArray before = fuzzSupport::saved(order);
    const auto result =
        cellBlock::paste(&model, model.index(1, 1), {}, {1, 2}, columns, text, true);
    const QByteArray after = fuzzSupport::saved(order);
    if (!result.change) {
        require(before == after, "nothing changes without a step");
        return;
    }
    result.change->undo();
    require(fuzzSupport::saved(order) == before, "pasting is taken back");
    result.change->redo();
    require(fuzzSupport::saved(order) == after, "and done again");
}

void typing(const QString &text)
{
    const QDate today(2026, 11, 25);
    for (const typed::numberForm &form :
         {typed::numberForm{0, 1e9, 6, 2, {QStringLiteral("zł")}}, typed::numberForm{-5, 100, 0, 0},
          typed::numberForm{0, 1e15, 12, 0, {QStringLiteral("kg"), QStringLiteral("m")}}}) {
        const typed::number number = typed::readNumber(text, form);
        require(number.text.isEmpty() != number.fault.isEmpty(), "it is taken or told why not");
        if (number.text.isEmpty())
            continue;
        require(decimal::read(number.text).has_value(), "a number is stored as one");
        require(typed::readNumber(number.text, form).text == number.text, "and stays the same");
    }
    const typed::day day = typed::readDay(text, today);
    require(day.date.isValid() == day.fault.isEmpty(), "a day is taken or told why not");
    if (day.date.isValid())
        require(typed::readDay(day.date.toString(QStringLiteral("dd.MM.yyyy")), today).date
                    == day.date,
                "a day stays the same");
    if (const auto exact = decimal::read(text))
        require(decimal::read(exact->text()) == exact, "a number is written as it was read");
}

void searching(known &in, const QString &text)
{
    const searchQuery query = searchQuery::parse(text);
    const materialSearch::result result = in.search.find(query, 100);
    for (const materialSearch::entry &found : result.entries)
        require(in.search.matches(found.material, query), "what is found matches");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzzSupport::begin<QApplication>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static known in;
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), int(size - 1));
    const QString text = QString::fromUtf8(bytes);
    switch (data[0]) {
    case 'l':
        listing(in, text);
        break;
    case 'c':
        cpvCodes(in, bytes);
        break;
    case 'z':
        archive(bytes);
        break;
    case 'h':
        helperOutput(bytes);
        break;
    case 'p':
        pasting(text);
        break;
    case 't':
        typing(text);
        break;
    case 's':
        searching(in, text);
        break;
    default:
        return -1;
    }
    return 0;
}
