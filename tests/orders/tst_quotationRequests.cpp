// Requests for quotation: what each firm gets and does not get, numbers, messages of a batch, failures of single
// firms, reminders, and who answered.
#include "orders/quotationRequests.h"

#include "bom/workbookReader.h"
#include "data/firmDetails.h"
#include "data/programData.h"
#include "mail/mail.h"
#include "orders/offerImport.h"
#include "orders/quotationDocuments.h"
#include "orders/quotationForm.h"
#include "testSupport.h"

using namespace quotationRequests;
using namespace testSupport;

class tst_quotationRequests : public folderTest
{
    Q_OBJECT
    struct lineOf
    {
        QString ktm, name, quantity;
        QString unit = "szt.";
        QString wait = "24.12.2026";
    };
    void addLine(const lineOf &of)
    {
        auto *line = appendTo(m_order->orderItems);
        line->ktm = of.ktm;
        line->name = of.name;
        line->quantity = of.quantity;
        line->unit = of.unit;
        line->wait = of.wait;
        line->price = "77.31";
        line->averagePrice = "78.32";
        line->inWarehouse = "5417";
        line->target = "312-SECRET";
    }
    void addMaterial(const char *ktm, const QStringList &makers, const QStringList &suppliers)
    {
        auto material = std::make_unique<materialStruct>();
        material->d_ktm = ktm;
        material->d_price = "79.33";
        for (const QString &maker : makers) {
            auto *one = appendTo(material->manufacturers);
            one->name = maker.section(' ', 0, 0);
            one->partNo = maker.section(' ', 1);
        }
        for (const QString &supplier : suppliers) {
            auto *one = appendTo(material->suppliers);
            one->name = supplier;
            one->partNo = "SUP-" + supplier;
        }
        m_materials.insert({material.get(), nullptr, nullptr});
        m_owned.push_back(std::move(material));
    }
    void addFirm(const QString &name, const QString &email, const QString &language, const QString &nip = {})
    {
        auto *firm = appendTo(m_firms.suppliers);
        firm->name = name;
        firm->nip = nip;
        firmDetailsStruct details;
        details.name = name;
        details.nip = nip;
        details.email = email;
        details.language = language;
        firmDetails::put(&m_details, name, nip, details);
    }
    QString orderPath() { return m_folder->path("zp/zp_13.xml"); }
    std::vector<candidate> candidates()
    {
        return candidatesOf(m_firms, m_details, asked(*m_order), m_materials, *offers());
    }
    std::vector<candidate> firms(const QStringList &names)
    {
        std::vector<candidate> all;
        for (const QString &name : names)
            for (const candidate &one : candidates())
                if (one.firm == name)
                    all.push_back(one);
        return all;
    }
    std::unique_ptr<kiv_mat_offersStruct> offers()
    {
        auto all = std::make_unique<kiv_mat_offersStruct>();
        QString fault;
        const QString path = orderOffers::fileOf(orderPath());
        if (QFileInfo::exists(path) && !readChecked(path, all.get(), &fault))
            QTest::qFail(qPrintable(fault), __FILE__, __LINE__);
        return all;
    }
    batch batchFor(const QStringList &names)
    {
        return {m_order.get(), orderPath(), {}, firms(names), QDate(2026, 12, 3), &m_materials};
    }
    // Prints the page as it is; a firm of m_unprintable cannot be printed for.
    means with(bool starts = true)
    {
        means all;
        all.print = [this](const QString &html, const QString &path, const QString &, QString *fault) {
            testSupport::write(path, html.toUtf8());
            *fault = "no paper";
            return m_unprintable.isEmpty() || !html.contains(m_unprintable);
        };
        if (starts)
            all.start = [this](const QString &description) {
                m_started.append(description);
                return !description.contains(m_unstartable);
            };
        all.now = QDateTime(QDate(2026, 11, 26), QTime(9, 5));
        return all;
    }
    result send(const QStringList &names, bool starts = true)
    {
        return quotationRequests::send(batchFor(names), with(starts), m_config);
    }
    QString kept(const QString &name) { return orderOffers::folderOf(orderPath()) + '/' + name; }
    static QString told(const result &of)
    {
        QStringList all{of.fault};
        for (const outcome &one : of.firms)
            all.append(one.number + ' ' + one.firm + (one.isWritten ? " written" : "")
                       + (one.isStarted ? " started" : ""));
        return all.join('|');
    }
    QString noted()
    {
        QStringList all;
        const auto kept = offers();
        for (const auto &one : kept->requests)
            all.append(one->number + ' ' + one->firm + ' ' + one->sent + '>' + one->reminded);
        return all.join('|');
    }
    void answer(const QString &firm, const QString &request)
    {
        auto all = offers();
        auto offer = std::make_unique<offerStruct>();
        offer->firm = firm;
        offer->request = request;
        offer->received = "2026.12.01";
        all->offers.push_back(std::move(offer));
        QVERIFY(saveXmlNoEvents(orderOffers::fileOf(orderPath()), all.get()) == 0);
    }
    QStringList messages() { return QDir(mail::folder()).entryList({"*.cmd", "*.html"}, QDir::Files, QDir::Name); }

    std::unique_ptr<kiv_mat_zpStruct> m_order;
    std::vector<std::unique_ptr<materialStruct>> m_owned;
    ktmIndex m_materials;
    kiv_mat_firmStruct m_firms;
    kiv_mat_firmDetailsStruct m_details;
    configStruct m_config;
    QString m_unprintable;
    QString m_unstartable;
    QStringList m_started;

protected slots:
    void init() override
    {
        folderTest::init();
        QDir().mkpath(m_folder->path("zp"));
        QDir().mkpath(m_folder->path("_e-mail"));
        m_order = std::make_unique<kiv_mat_zpStruct>();
        m_order->options.findOption(optionKey::orderNumber)->value1 = "ZP/13/2026";
        m_order->options.findOption(optionKey::personAuthor)->value1 = "Anna <Nowak>";
        m_order->options.findOption(optionKey::orderTarget)->value1 = "312-SECRET";
        m_owned.clear();
        m_materials.clear();
        m_firms.suppliers.items.clear();
        m_firms.manufacturers.items.clear();
        m_details.details.clear();
        m_config.setDefaults();
        m_config.backupPath();
        m_unprintable.clear();
        m_unstartable = "nobody";
        m_started.clear();
        addLine({"R-1", "Resistor <1%>", "100,5"});
        addLine({"R-1", "Resistor <1%>", "20", "szt.", "01.12.2026"});
        addLine({"C-2", "=1+1", "7"});
        addLine({"SRV-000.100", "Shipment", "1"});
        addLine({"", "By name", "x"});
        addMaterial("R-1", {"Yageo RC0603", "Vishay CRCW"}, {"Mouser", "TME"});
        addMaterial("C-2", {"Murata GRM"}, {"TME"});
        addFirm("Mouser", "sales@mouser.example; second@mouser.example", "en");
        addFirm("TME", "tme@tme.example", "pl", "7292386321");
        addFirm("Würth & Co", "info@wuerth.example", "DE");
        addFirm("Anonim", "", "pl");
    }

private slots:
    // Each gets its own request, and nothing of others, of prices, stock and targets.
    void documentsHoldOnlyWhatTheFirmNeeds_data()
    {
        const rows<QString, QString, QString> row;
        row("Mouser", "Request for quotation", "Needed by", "by 03.12.2026");
        row("TME", "Zapytanie ofertowe", "Potrzebne do", "do dnia 03.12.2026");
        row("Würth & Co", "Angebotsanfrage", "Benötigt bis", "bis zum 03.12.2026");
    }
    void documentsHoldOnlyWhatTheFirmNeeds()
    {
        const auto [title, needed, deadline] = fetch<QString, QString, QString>();
        QCOMPARE(told(send({"Mouser", "TME", "Würth & Co"})),
                 QString("|ZP/13/2026/Z1 Mouser written started|ZP/13/2026/Z2 TME written started|"
                         "ZP/13/2026/Z3 Würth & Co written started"));
        const auto all = offers();
        const auto request = std::find_if(all->requests.begin(), all->requests.end(),
                                          [](const auto &one) { return one->firm == tag(); });
        const QString page = QString::fromUtf8(read(kept((*request)->document)));
        QString fault;
        const auto sheets = workbookReader::read(kept((*request)->table), &fault);
        QVERIFY2(sheets && sheets->size() == 1, qPrintable(fault));
        QString cells;
        for (const QStringList &one : sheets->front().rows)
            cells += one.join('\t') + '\n';
        for (const QString &document : {page, cells})
            for (const char *part :
                 {"R-1", "Yageo RC0603; Vishay CRCW", "Murata GRM", "120.5", "01.12.2026", "szt.", "C-2", "03.12.2026"})
                QVERIFY2(document.contains(part), part);
        QVERIFY(page.contains("Anna &lt;Nowak&gt;") && page.contains("Resistor &lt;1%&gt;") && page.contains(needed));
        QVERIFY(page.contains(tag().toHtmlEscaped()) && page.contains((*request)->number));
        QVERIFY(cells.contains("Anna <Nowak>") && cells.contains("=1+1") && cells.contains(tag()));
        QCOMPARE(sheets->front().name, title);
        const QString body = QString::fromUtf8(
            read(m_started.filter(QString(tag()).section(' ', 0, 0)).value(0).replace(".cmd", ".html")));
        QVERIFY2(body.contains((*request)->number) && body.contains(deadline), qPrintable(body));
        for (const QString &document : {page, cells, body}) {
            for (const char *secret : {"77.31", "78.32", "79.33", "5417", "SECRET", "SUP-", "SRV-", "Anonim"})
                QVERIFY2(!document.contains(secret), secret);
            for (const char *other : {"Mouser", "TME", "Würth"})
                QVERIFY2(tag().contains(other) || !document.contains(other), other);
        }
    }

    // The table is read back as what it is, and holds nothing that the firm has to write.
    void theTableIsReadBack()
    {
        send({"TME"});
        QString fault;
        const auto all = offers();
        auto sheet = offerImport::readSheet(kept(all->requests.front()->table), {}, &fault);
        QVERIFY2(sheet && sheet->isForm, qPrintable(fault));
        QCOMPARE(sheet->entry(quotationForm::request), QString("ZP/13/2026/Z1"));
        QCOMPARE(sheet->entry(quotationForm::firm), QString("TME"));
        QCOMPARE(sheet->entry(quotationForm::customer), QString("Anna <Nowak>"));
        for (int i = quotationForm::currency; i < quotationForm::entryCount; ++i)
            QCOMPARE(sheet->entry(quotationForm::entry(i)), QString());
        const auto offer = offerImport::offerOf(*sheet, {}, {"ZP/13/2026", orderOffers::needsOf(*m_order), *all});
        QCOMPARE(offer.offered, 0);
        QCOMPARE(offer.withoutPrice, 2);
    }

    void requestsAreNoted()
    {
        send({"Mouser", "TME"});
        QCOMPARE(noted(), QString("ZP/13/2026/Z1 Mouser 2026.11.26 09:05>|ZP/13/2026/Z2 TME 2026.11.26 09:05>"));
        const auto all = offers();
        QCOMPARE(all->number, QString("ZP/13/2026"));
        const requestStruct &second = *all->requests[1];
        QCOMPARE(second.nip + ' ' + second.language + ' ' + second.deadline, QString("7292386321 pl 2026.12.03"));
        QCOMPARE(all->requests[0]->to, QString("sales@mouser.example, second@mouser.example"));
        QStringList items;
        for (const auto &one : second.items)
            items.append(one->key + ' ' + one->name + ' ' + one->quantity + ' ' + one->unit + ' ' + one->wait);
        QCOMPARE(items.join('|'), QString("R-1 Resistor <1%> 120.5 szt. 2026.12.01|C-2 =1+1 7 szt. 2026.12.24"));
        // Written only, it was not sent.
        QCOMPARE(told(send({"TME"}, false)), QString("|ZP/13/2026/Z3 TME written"));
        QVERIFY(noted().endsWith("ZP/13/2026/Z3 TME >"));
    }

    // The messages of earlier batches go, those of this one stay.
    void aBatchKeepsItsMessages()
    {
        const QString old = m_folder->write("_e-mail/msg_old.cmd", "x");
        const QString kept = m_folder->write("_e-mail/msg_template.htm", "x");
        send({"Mouser", "TME"});
        QCOMPARE(messages().join(' '),
                 QString("msg_ZP_13_2026_Z1_Mouser.cmd msg_ZP_13_2026_Z1_Mouser.html msg_ZP_13_2026_Z2_TME.cmd "
                         "msg_ZP_13_2026_Z2_TME.html"));
        QVERIFY(!QFile::exists(old) && QFile::exists(kept));
        const QString description = QString::fromUtf8(read(m_started.value(0)));
        const QString folder = orderOffers::folderOf(orderPath()) + "/ZP_13_2026_Z1_Mouser";
        QCOMPARE(description, "to \t\t\t[sales@mouser.example]\nto \t\t\t[second@mouser.example]\n"
                              "subject \t[Request for quotation ZP/13/2026/Z1]\nbody \t\t["
                                  + m_started.value(0).replace(".cmd", ".html") + "]\nattachment \t[" + folder
                                  + ".pdf]\nattachment \t[" + folder + ".xlsx]\n");
        for (const QString &file : {folder + ".pdf", folder + ".xlsx"})
            QVERIFY2(QFile::exists(file), qPrintable(file));
        send({"Würth & Co"});
        QCOMPARE(messages().size(), 2);
    }

    // Before anything is written.
    void nothingIsDoneFor_data()
    {
        const rows<QString> row;
        row("TME Anonim", "Anonim has no e-mail address");
        row("", "No firm is chosen");
        row("TME lines 3,4,99,-1", "No line with a quantity is to be asked for");
        row("TME broken", "offers.xml: ");
    }
    void nothingIsDoneFor()
    {
        const auto [fault] = fetch<QString>();
        m_folder->write("_e-mail/msg_old.cmd", "x");
        batch of = batchFor(tag().split(' '));
        if (tag().contains("lines"))
            of.lines = {3, 4, 99, -1};
        if (tag().contains("broken"))
            m_folder->write("zp/offers/zp_13/offers.xml", "<x");
        const result all = quotationRequests::send(of, with(), m_config);
        QVERIFY2(all.fault.contains(fault), qPrintable(all.fault));
        QVERIFY(all.firms.empty() && m_started.isEmpty());
        QCOMPARE(messages(), QStringList{"msg_old.cmd"});
        QCOMPARE(QFile::exists(orderOffers::fileOf(orderPath())), tag().contains("broken"));
    }

    // What fails with one firm leaves nothing of it, and the others go on.
    void oneFailureHurtsNobodyElse()
    {
        m_unprintable = "Mouser";
        const result all = send({"Mouser", "TME"});
        QCOMPARE(told(all), QString("|ZP/13/2026/Z1 Mouser|ZP/13/2026/Z1 TME written started"));
        QVERIFY2(all.faults().join('|').startsWith("Mouser: ") && all.faults().join('|').endsWith("no paper"),
                 qPrintable(all.faults().join('|')));
        QCOMPARE(noted(), QString("ZP/13/2026/Z1 TME 2026.11.26 09:05>"));
        QCOMPARE(QDir(orderOffers::folderOf(orderPath())).entryList({"*Mouser*"}), QStringList());
        QCOMPARE(messages().size(), 2);
        // What cannot be started was written, and not sent.
        m_unprintable.clear();
        m_unstartable = "Mouser";
        QCOMPARE(told(send({"Mouser"})), QString("|ZP/13/2026/Z2 Mouser written"));
        QCOMPARE(noted(), QString("ZP/13/2026/Z1 TME 2026.11.26 09:05>|ZP/13/2026/Z2 Mouser >"));
        QCOMPARE(messages().size(), 2);
        // No message can be written.
        QVERIFY(QDir(mail::folder()).removeRecursively());
        m_folder->write("_e-mail", "a file");
        QCOMPARE(told(send({"TME"})), QString("|ZP/13/2026/Z3 TME"));
        QCOMPARE(offers()->requests.size(), size_t(2));
        QCOMPARE(QDir(orderOffers::folderOf(orderPath())).entryList({"*Z3*"}), QStringList());
    }

    void cancelStopsBetweenFirms()
    {
        means some = with();
        some.progress = [](long long done, long long total) { return total == 3 && done < 1; };
        const result all = quotationRequests::send(batchFor({"Mouser", "TME", "Würth & Co"}), some, m_config);
        QVERIFY(all.isCancelled);
        QCOMPARE(noted(), QString("ZP/13/2026/Z1 Mouser 2026.11.26 09:05>"));
    }

    // Printing that is broken off is no fault of the firm; one that fails by itself is.
    void cancelStopsAPrint()
    {
        bool isPressed = false;
        means some = with();
        some.progress = [&isPressed](long long, long long) { return !isPressed; };
        some.print = [&](const QString &html, const QString &path, const QString &, QString *) {
            isPressed = html.contains("TME");
            if (!isPressed)
                testSupport::write(path, "x");
            return !isPressed;
        };
        const result all = quotationRequests::send(batchFor({"Mouser", "TME", "Würth & Co"}), some, m_config);
        QVERIFY(all.isCancelled && all.faults().isEmpty());
        QCOMPARE(told(all), QString("|ZP/13/2026/Z1 Mouser written started"));
        QCOMPARE(noted(), QString("ZP/13/2026/Z1 Mouser 2026.11.26 09:05>"));
        QCOMPARE(QDir(orderOffers::folderOf(orderPath())).entryList({"*TME*"}), QStringList());
        isPressed = false;
        some.print = [](const QString &, const QString &, const QString &, QString *) { return false; };
        const result failing = quotationRequests::send(batchFor({"TME", "Mouser"}), some, m_config);
        QCOMPARE(failing.faults().size(), 2);
        QVERIFY(!failing.isCancelled);
    }

    void numbers_data()
    {
        const rows<QString, QString> row;
        row("", "ZP/13/2026", "ZP/13/2026/Z1");
        row("ZP/13/2026/Z2 ZP/13/2026/Z10", "ZP/13/2026", "ZP/13/2026/Z11");
        row("old/Z4 x/Z", "ZP/13/2026", "ZP/13/2026/Z5");
        row("zp_13/Z1", " ", "zp_13/Z2");
    }
    void numbers()
    {
        const auto [order, number] = fetch<QString, QString>();
        m_order->options.findOption(optionKey::orderNumber)->value1 = order;
        kiv_mat_offersStruct all;
        for (const QString &one : tag().split(' ')) {
            all.requests.push_back(std::make_unique<requestStruct>());
            all.requests.back()->number = one;
        }
        QCOMPARE(nextNumber(*m_order, orderPath(), all), number);
    }

    // Of a part of the lines, under the keys that the whole order has.
    void linesKeepTheirKeys()
    {
        addLine({"R-1", "Resistor", "3", "kg"});
        const auto keys = [this](const std::optional<std::vector<int>> &lines) {
            QStringList all;
            for (const auto &one : asked(*m_order, lines).all)
                all.append(one.key + '=' + one.quantity.text());
            return all.join('|');
        };
        QCOMPARE(keys({}), QString("R-1=120.5|C-2=7|R-1 kg=3"));
        QCOMPARE(keys(std::vector<int>{5, 1, 1, 3}), QString("R-1=20|R-1 kg=3"));
        QCOMPARE(keys(std::vector<int>{5}), QString("R-1 kg=3"));
        QCOMPARE(asked(*m_order).uncounted, std::vector<int>{4});
    }

    void candidatesAreThoseOfTheRegister()
    {
        appendTo(m_firms.manufacturers)->name = "  yageo ";
        appendTo(m_firms.manufacturers)->name = "tme";
        appendTo(m_firms.manufacturers)->name = "";
        m_details.details[1]->address = "Ustronna 41\n93-350 Łódź";
        send({"Mouser"});
        QStringList all;
        for (const candidate &one : candidates())
            all.append(one.firm + ' ' + one.language + ' ' + QString::number(one.named) + ' '
                       + QString::number(one.to.size()) + ' ' + one.before);
        QCOMPARE(all.join('|'), QString("TME pl 2 1 |Mouser en 1 2 ZP/13/2026/Z1|yageo en 1 0 |Anonim pl 0 0 |"
                                        "Würth & Co de 0 1 "));
        QCOMPARE(candidates().front().address, QString("Ustronna 41 93-350 Łódź"));
    }

    // An offer of another firm, or for another request, is no answer.
    void whoAnswered()
    {
        send({"Mouser", "TME"});
        answer("Mouser", "ZP/13/2026/Z2");
        answer("TME", "");
        const auto standing = [this](const QDate &today) {
            const auto all = offers();
            QStringList texts;
            for (const auto &one : all->requests)
                texts.append(stateText(stateOf(*one, *all, today)));
            return texts.join('|') + ' ' + QString::number(overdue(*all, today).size());
        };
        QCOMPARE(standing({2026, 12, 3}), QString("waiting|waiting 0"));
        QCOMPARE(standing({2026, 12, 4}), QString("overdue|overdue 2"));
        answer(" tme", "ZP/13/2026/Z2");
        QCOMPARE(standing({2026, 12, 4}), QString("overdue|offer came 1"));
        const auto all = offers();
        QCOMPARE(unanswered(*all).size(), size_t(1));
        QCOMPARE(unanswered(*all).front()->firm, QString("Mouser"));
        all->requests[0]->deadline.clear();
        QVERIFY(overdue(*all, {2030, 1, 1}).empty());
    }

    // Nobody waits for an answer to what was only written; a reminder takes the documents along.
    void whatWasOnlyWritten()
    {
        send({"Mouser", "TME"}, false);
        const auto all = offers();
        all->requests[1]->reminded = "2026.11.27 10:00";
        const auto standing = [&all](const QDate &today) {
            return stateText(stateOf(*all->requests[0], *all, today)) + '|'
                   + stateText(stateOf(*all->requests[1], *all, today));
        };
        QCOMPARE(standing({2026, 12, 3}), QString("written only|waiting"));
        QCOMPARE(standing({2026, 12, 4}), QString("overdue|overdue"));
        answer("Mouser", "ZP/13/2026/Z1");
        QCOMPARE(stateOf(*all->requests[0], *offers(), {2026, 12, 3}), state::answered);
    }

    // Names in the file of offers lead nowhere else.
    void keptFiles_data()
    {
        const rows<bool> row;
        row("Z1.pdf", true);
        row.each({"", "Z2.pdf", "../zp_13.xml", "deep/Z1.pdf", "deep", "./Z1.pdf", "%/Z1.pdf"}, false);
    }
    void keptFiles()
    {
        for (const char *name : {"zp/offers/zp_13/Z1.pdf", "zp/offers/zp_13/deep/Z1.pdf", "zp/offers/zp_13.xml"})
            m_folder->write(name, "x");
        const auto [isKept] = fetch<bool>();
        const QString name = tag().replace('%', orderOffers::folderOf(orderPath()));
        QCOMPARE(keptFile(orderPath(), name), isKept ? kept(name) : QString());
    }

    void remindersGoToThoseWithoutAnOffer_data()
    {
        const rows<QString, QString> row;
        row("Mouser", "Reminder: request for quotation ZP/13/2026/Z1", "have not received");
        row("TME", "Przypomnienie: zapytanie ofertowe ZP/13/2026/Z1", "Nie otrzymaliśmy");
        row("Würth & Co", "Erinnerung: Angebotsanfrage ZP/13/2026/Z1", "liegt uns noch nicht vor");
    }
    void remindersGoToThoseWithoutAnOffer()
    {
        const auto [subject, text] = fetch<QString, QString>();
        const bool isTme = tag() == "TME";
        send({tag(), isTme ? "Mouser" : "TME"});
        answer(isTme ? "Mouser" : "TME", "ZP/13/2026/Z2");
        m_started.clear();
        means later = with();
        later.now = QDateTime(QDate(2026, 12, 5), QTime(10, 0));
        const QStringList numbers{"ZP/13/2026/Z2", "ZP/13/2026/Z1", "ZP/13/2026/Z7"};
        const result all = sendKept(occasion::reminder, orderPath(), numbers, later, m_config);
        QCOMPARE(all.started(), 1);
        QCOMPARE(all.faults().size(), 2);
        QCOMPARE(noted().section('|', 0, 0), "ZP/13/2026/Z1 " + tag() + " 2026.11.26 09:05>2026.12.05 10:00");
        QVERIFY(noted().endsWith(" 2026.11.26 09:05>"));
        QCOMPARE(messages().size(), 2);
        const QString description = QString::fromUtf8(read(m_started.value(0)));
        QVERIFY2(description.contains("[" + subject + "]"), qPrintable(description));
        QCOMPARE(description.count("attachment"), 2);
        QVERIFY(QString::fromUtf8(read(m_started.value(0).replace(".cmd", ".html"))).contains(text));
    }

    // The same documents, to the address that the firm has now.
    void documentsAreSentAgain()
    {
        send({"TME"});
        const QString table = kept(offers()->requests.front()->table);
        const QByteArray before = read(table);
        m_details.details[1]->email = "new@tme.example";
        means later = with();
        later.now = QDateTime(QDate(2026, 12, 5), QTime(10, 0));
        later.details = &m_details;
        QCOMPARE(sendKept(occasion::again, orderPath(), {"ZP/13/2026/Z1"}, later, m_config).started(), 1);
        QCOMPARE(noted(), QString("ZP/13/2026/Z1 TME 2026.12.05 10:00>"));
        QCOMPARE(offers()->requests.front()->to, QString("new@tme.example"));
        QCOMPARE(read(table), before);
        const QByteArray description = read(m_started.last());
        QVERIFY(description.contains("new@tme.example") && description.contains("[Zapytanie ofertowe ZP/13/2026/Z1]"));
        // Failing, it is noted as it was before.
        m_unstartable = "TME";
        later.now = later.now.addDays(1);
        m_details.details[1]->email = "newer@tme.example";
        QCOMPARE(sendKept(occasion::again, orderPath(), {"ZP/13/2026/Z1"}, later, m_config).faults().size(), 1);
        QCOMPARE(noted(), QString("ZP/13/2026/Z1 TME 2026.12.05 10:00>"));
        QCOMPARE(offers()->requests.front()->to, QString("new@tme.example"));
        QVERIFY(QFile::remove(table));
        const result all = sendKept(occasion::again, orderPath(), {"ZP/13/2026/Z1"}, later, m_config);
        QVERIFY2(all.faults().value(0).endsWith("is missing"), qPrintable(all.faults().value(0)));
        QCOMPARE(all.written(), 0);
    }
};

KIVZP_TEST(tst_quotationRequests)
#include "tst_quotationRequests.moc"
