// How what is typed in a search may go on, and searches that are kept.
#include "testSupport.h"

#include "data/keptSearches.h"
#include "data/searchCompletion.h"
#include "util/translation.h"

using namespace testSupport;

class tst_searchCompletion : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_database = std::make_unique<kiv_mat_databaseStruct>();
        m_search = std::make_unique<materialSearch>();
        for (const char *box :
             {"0603", "0805", "0603", "SOT-23", "0603", "sot-23", "SOT-23", "2 x 0603", "P2.06", "1|2", "a\"b"})
            append("G", box);
        materialStruct *m = append("Dioda TVS", "0805");
        m->d_price = "12.5";
        m->d_voltage = "5V~12V";
        m->d_power = "1/4";
        m->information.status = "ZIELONY";
        manufacturer(m, "Texas Instruments", "LM358")->description = "Texas old";
        m->d_description = QString(61, 'x');
        m_search->add(m_database.get());
    }
    void cleanup()
    {
        translation::install("en");
        QFile::remove(keptSearches::file());
    }

    // The caret is "^". What is offered, as it is put in place.
    void completions_data()
    {
        const rows<QString, QString> row;
        row("po^", "po", "power:");
        row("x !wart^", "wart", "wartosc:");
        row("m^", "", "");
        row("package^", "package", "package:");
        row("rezystor^", "", "");
        // By frequency, what begins with it before what has a word that does; spelt as most often.
        row("case:06^", "06", "0603 \"2 x 0603\"");
        row("case:^", "", "0603 SOT-23 0805 \"1|2\" \"2 x 0603\" P2.06");
        row("CASE:SOT^ !ktm:x", "SOT", "SOT-23");
        row("case:=so^", "so", "SOT-23");
        row("case:0805|so^", "so", "SOT-23");
        row("case:0805|^", "", "0603 SOT-23 0805 \"1|2\" \"2 x 0603\" P2.06");
        row("!case:0805|pow^", "pow", "power:");
        row("case:0^6", "", "");
        row("case:0603 ^", "", "");
        row("case:sot-23^", "sot-23", "SOT-23");
        row("case:SOT-23^", "", "");
        row("group:tvs^", "tvs", "\"Dioda TVS\"");
        row("group:=\"dioda t^", "\"dioda t", "\"Dioda TVS\"");
        row("group:\"Dioda TVS\"^", "", "");
        // Not the descriptions.
        row("maker:te^", "te", "\"Texas Instruments\"");
        row("voltage:5^", "5", "\"5V~12V\"");
        row("power:1^", "1", "1/4");
        row("status:^", "", "green");
        row("status:gr^", "gr", "green");
        row("status:zi^", "zi", "ZIELONY");
        row("price:1^", "", "");
        row("description:x^", "", "");
        row("colour:r^", "", "");
    }

    void completions()
    {
        const auto [part, offered] = fetch<QString, QString>();
        const QString typed = tag();
        const int caret = typed.indexOf('^');
        const searchCompletion found = at(QString(typed).remove('^'), caret);
        QCOMPARE(textsOf(found), offered);
        if (!offered.isEmpty())
            QCOMPARE(typed.mid(found.begin, found.length), part);
        // What is put in place is found again.
        for (const searchSuggestion &item : found.items)
            if (!found.ofFields) {
                const QString whole = QString(typed).remove('^').replace(found.begin, found.length, item.text);
                const searchQuery query = searchQuery::parse(whole);
                QVERIFY2(query.errors().isEmpty(), qPrintable(whole));
                QVERIFY2(typed.startsWith('!') || m_search->find(query, 1).total > 0, qPrintable(whole));
            }
    }

    void wordsOfTheUser()
    {
        QVERIFY(translation::install("pl"));
        QCOMPARE(textsOf(at("status:", 7)), QString("ZIELONY"));
        QCOMPARE(textsOf(at("status:gre", 10)), QString("green"));
        QVERIFY(textsOf(at("", 0, true)).startsWith("nazwa: indeks: numer: wartosc:"));
        translation::install("en");
        QVERIFY(textsOf(at("", 0, true)).startsWith("name: ktm: part: value:"));
    }

    void valuesFollowTheData()
    {
        QCOMPARE(textsOf(at("case:q", 6)), QString());
        materialStruct *m = append("G", "QFN");
        m_search->insert({m, m_database->groups[0].get(), m_database.get()});
        QCOMPARE(textsOf(at("case:q", 6)), QString("QFN"));
        m->d_case = "QFP";
        m_search->update(m);
        QCOMPARE(textsOf(at("case:q", 6)), QString("QFP"));
        m_search->remove(m);
        QCOMPARE(textsOf(at("case:q", 6)), QString());
        // Another database has its own.
        kiv_mat_databaseStruct other;
        material(other, "G", "x")->d_case = "QFN";
        m_search->add(&other);
        QCOMPARE(textsOf(searchCompletion::at("case:q", 6, *m_search, m_database.get())), QString());
        QCOMPARE(textsOf(searchCompletion::at("case:q", 6, *m_search, &other)), QString("QFN"));
        m_search->clear();
        QCOMPARE(textsOf(at("case:", 5)), QString());
    }

    void searchesAreKept()
    {
        QVERIFY(keptSearches::all().empty());
        QVERIFY(keptSearches::keep({"Żółte, \"a\"", "case:\"a b\"|x price:<0,5"}));
        QVERIFY(keptSearches::keep({"Drogie", "price:>100"}));
        QVERIFY(keptSearches::keep({"drogie", "price:>200"}));
        QCOMPARE(keptSearches::all(),
                 (std::vector<keptSearch>{{"drogie", "price:>200"}, {"Żółte, \"a\"", "case:\"a b\"|x price:<0,5"}}));
        QCOMPARE(keptSearches::find(" ZOLTE, \"A\" ")->words, QString("case:\"a b\"|x price:<0,5"));
        QVERIFY(!keptSearches::find("drog"));
        QVERIFY(keptSearches::setAll({{"x", "y"}}));
        QCOMPARE(keptSearches::all().size(), size_t(1));
        QVERIFY(keptSearches::setAll({}));
        QVERIFY(keptSearches::all().empty());
    }

    void lastSearches()
    {
        for (int i = 0; i < 12; ++i)
            keptSearches::addLast(QString("a, %1").arg(i));
        keptSearches::addLast("a,  5 ");
        keptSearches::addLast(" ");
        QCOMPARE(keptSearches::last().join('|'), QString("a, 5|a, 11|a, 10|a, 9|a, 8|a, 7|a, 6|a, 4|a, 3|a, 2"));
        keptSearches::forgetLast();
        QVERIFY(keptSearches::last().isEmpty());
    }

    // What cannot be written is told, and what is no such file is no obstacle.
    void unreadableFile()
    {
        QVERIFY(QDir().mkpath(keptSearches::file()));
        QVERIFY(keptSearches::all().empty());
        QVERIFY(!keptSearches::keep({"x", "y"}));
        QVERIFY(QDir().rmdir(keptSearches::file()));
        QFile file(keptSearches::file());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("\0[[kept\nsize=99999\n\xff", 21);
        file.close();
        QVERIFY(keptSearches::all().empty());
        QVERIFY(keptSearches::keep({"x", "y"}));
        QVERIFY(keptSearches::find("x"));
    }

private:
    materialStruct *append(const QString &group, const QString &box)
    {
        materialStruct *added = material(*m_database, group, QString::number(++m_count));
        added->d_case = box;
        return added;
    }
    searchCompletion at(const QString &typed, int caret, bool asked = false)
    {
        return searchCompletion::at(typed, caret, *m_search, nullptr, asked);
    }
    static QString textsOf(const searchCompletion &completion)
    {
        QStringList texts;
        for (const searchSuggestion &item : completion.items)
            texts << item.text;
        return texts.join(' ');
    }

    int m_count = 0;
    std::unique_ptr<kiv_mat_databaseStruct> m_database;
    std::unique_ptr<materialSearch> m_search;
};

KIVZP_TEST(tst_searchCompletion)
#include "tst_searchCompletion.moc"
