#include "orders/quotationRequests.h"

#include "data/firmDetails.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/vocabulary.h"
#include "mail/mail.h"
#include "orders/quotationDocuments.h"
#include "orders/quotationForm.h"
#include "util/files.h"
#include "util/userName.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace quotationRequests {

namespace {

constexpr int usualDays = 7;

QString nameKey(const QString &name) { return name.simplified().toCaseFolded(); }

bool isAnswered(const requestStruct &of, const kiv_mat_offersStruct &offers)
{
    return std::any_of(offers.offers.begin(), offers.offers.end(), [&](const auto &offer) {
        return offer->request.trimmed() == of.number.trimmed()
               && orderOffers::isSameFirm(offer->firm, offer->nip, of.firm, of.nip);
    });
}

// Not those of another firm of the same name: it would get this one's request.
const firmDetailsStruct *detailsOf(const kiv_mat_firmDetailsStruct &details, const QString &firm,
                                   const QString &nip)
{
    const firmDetailsStruct *its = firmDetails::find(details, firm, nip);
    return its && orderOffers::isSameFirm(its->name, its->nip, firm, nip) ? its : nullptr;
}

// "maker number; maker number"
QString partNumbersOf(const QString &ktm, const ktmIndex &materials)
{
    const ktmIndex::entry *found = ktm.isEmpty() ? nullptr : materials.find(ktm);
    QStringList all;
    if (found)
        for (const auto &maker : found->material->manufacturers.items)
            if (const QString one = (maker->name + QLatin1Char(' ') + maker->partNo).simplified();
                !one.isEmpty())
                all.append(one);
    return all.join(QLatin1String("; "));
}

QString timeText(const QDateTime &time)
{
    return time.toString(QStringLiteral("yyyy.MM.dd hh:mm"));
}

QString cannotWrite(const QString &path, const QString &reason)
{
    return QCoreApplication::translate("quotationRequests", "%1 cannot be written: %2")
        .arg(QDir::toNativeSeparators(path), reason);
}

// --- Messages

struct letter
{
    QString subject;
    QString text;
};

letter letterOf(const requestStruct &of, occasion why)
{
    using namespace quotationForm;
    const QDate deadline = orderOffers::readDate(of.deadline);
    if (why == occasion::reminder)
        return {textOf(reminderSubject, of.language).arg(of.number),
                textOf(reminderBody, of.language).arg(of.number)};
    return {textOf(mailSubject, of.language).arg(of.number),
            deadline.isValid()
                ? textOf(mailBody, of.language)
                      .arg(of.number, deadline.toString(QStringLiteral("dd.MM.yyyy")))
                : textOf(mailBodyOpen, of.language).arg(of.number)};
}

// Writes the body and the description, which are added to files. False with the reason in fault;
// what was written till then is among files.
bool writeMessage(const requestStruct &of, const letter &what, const QString &orderPath,
                  QStringList *written, QString *fault)
{
    const QString documents = orderOffers::folderOf(orderPath) + QLatin1Char('/');
    const QString ending = QStringLiteral(".cmd");
    const QString path = mail::folder() + QLatin1Char('/')
                         + orderOffers::freeName(
                             mail::folder(), {QStringLiteral("msg"), of.number, of.firm}, ending);
    mail::message message;
    message.to = mail::addresses(of.to);
    message.subject = what.subject;
    message.body = path.chopped(ending.size()) + QLatin1String(".html");
    for (const QString &name : {of.document, of.table})
        message.attachments.append(documents + name);
    const auto write = [&](const QString &to, const QString &content) {
        if (!files::writeText(to, content)) {
            *fault = cannotWrite(to, files::whyNotWritten(to));
            return false;
        }
        written->append(to);
        return true;
    };
    return write(message.body, quotationDocuments::messagePage(what.subject, what.text))
           && write(path, mail::description(message));
}

// --- One request

class sender
{
public:
    sender(const QString &orderPath, const means &with, configStruct &config)
        : m_orderPath(orderPath)
        , m_with(with)
        , m_config(config)
        , m_file(orderOffers::fileOf(orderPath))
    {
    }

    // Reads the file of offers. False with the reason.
    bool begin(QString *fault)
    {
        m_file.now();
        if (m_file.fault().isEmpty())
            return true;
        *fault = QDir::toNativeSeparators(m_file.path()) + QLatin1String(": ") + m_file.fault();
        return false;
    }
    const kiv_mat_offersStruct &offers() { return m_file.now(); }

    outcome sendNew(const batch &of, const candidate &to, const orderOffers::needs &needs)
    {
        outcome done;
        const kiv_mat_zpStruct &order = *of.order;
        auto request = std::make_unique<requestStruct>();
        request->number = nextNumber(order, m_orderPath, offers());
        request->firm = to.firm;
        request->nip = to.nip;
        request->to = to.to.join(QLatin1String(", "));
        request->language = quotationForm::known(to.language);
        request->sent = m_with.start ? timeText(m_with.now) : QString();
        request->by = userName();
        request->deadline = orderOffers::dateText(of.deadline);
        for (const orderOffers::need &one : needs.all) {
            requestedStruct *item = request->append(std::make_unique<requestedStruct>());
            item->key = one.key;
            item->name = one.name;
            item->quantity = one.quantity.text();
            item->unit = one.unit;
            item->wait = orderOffers::dateText(one.wait);
        }
        done.firm = to.firm;
        done.number = request->number;
        const bool good =
            writeDocuments(contentOf(of, *request, needs), request.get(), &done)
            && writeMessage(*request, letterOf(*request, occasion::again), m_orderPath, &done.files,
                            &done.fault)
            && note(order.options.value(optionKey::orderNumber), std::move(request), &done.fault);
        return finish(good, std::move(done));
    }

    outcome sendKept(occasion why, const QString &number)
    {
        outcome done;
        done.number = number;
        const requestStruct *kept = find(offers(), number);
        if (!kept) {
            done.fault = noRequest(number);
            return done;
        }
        done.firm = kept->firm;
        requestStruct request;
        copyFields(request, *kept, requestStruct::fields());
        m_toBefore = kept->to;
        request.to = addressesOf(request).join(QLatin1String(", "));
        done.fault = refusalOf(why, request);
        if (!done.fault.isEmpty())
            return done;
        const bool good =
            writeMessage(request, letterOf(request, why), m_orderPath, &done.files, &done.fault)
            && noteTime(why, request, &done.fault);
        return finish(good, std::move(done), why);
    }

private:
    static requestStruct *find(const kiv_mat_offersStruct &offers, const QString &number)
    {
        for (const auto &one : offers.requests)
            if (one->number == number)
                return one.get();
        return nullptr;
    }

    static QString noRequest(const QString &number)
    {
        return QCoreApplication::translate("quotationRequests", "There is no request %1")
            .arg(number);
    }

    QString folder() const { return orderOffers::folderOf(m_orderPath); }

    static quotationDocuments::content contentOf(const batch &of, const requestStruct &request,
                                                 const orderOffers::needs &needs)
    {
        quotationDocuments::content content{
            request.number, of.order->options.value(optionKey::personAuthor),
            request.firm,   request.language,
            of.deadline,    {}};
        for (const orderOffers::need &one : needs.all)
            content.materials.push_back({one.key, one.name, partNumbersOf(one.ktm, *of.materials),
                                         one.quantity, one.unit, one.wait});
        return content;
    }

    bool writeDocuments(const quotationDocuments::content &content, requestStruct *request,
                        outcome *done)
    {
        if (!QDir().mkpath(folder())) {
            done->fault = cannotWrite(folder(), files::whyNotWritten(folder()));
            return false;
        }
        const QStringList parts{request->number, request->firm};
        const auto write = [&](QString *name, const QString &ending, const auto &writing) {
            *name = orderOffers::freeName(folder(), parts, ending);
            const QString path = folder() + QLatin1Char('/') + *name;
            QString fault;
            done->files.append(path);
            if (writing(path, &fault))
                return true;
            done->fault = cannotWrite(path, fault);
            return false;
        };
        return write(&request->document, QStringLiteral(".pdf"),
                     [&](const QString &path, QString *fault) {
                         return m_with.print(quotationDocuments::page(content), path,
                                             quotationDocuments::title(content), fault);
                     })
               && write(&request->table, QStringLiteral(".xlsx"),
                        [&](const QString &path, QString *fault) {
                            return quotationDocuments::writeTable(content, path, fault);
                        });
    }

    bool change(const std::function<bool(kiv_mat_offersStruct &)> &edit, QString *fault)
    {
        QString reason;
        if (m_file.change(edit, m_config, &reason))
            return true;
        *fault = cannotWrite(m_file.path(), reason);
        return false;
    }

    bool note(const QString &orderNumber, std::unique_ptr<requestStruct> request, QString *fault)
    {
        const QString number = request->number;
        bool isTaken = false;
        const bool written = change(
            [&](kiv_mat_offersStruct &offers) {
                isTaken = find(offers, request->number) != nullptr;
                if (isTaken)
                    return false;
                if (offers.number.isEmpty())
                    offers.number = orderNumber;
                offers.requests.push_back(std::move(request));
                return true;
            },
            fault);
        if (isTaken)
            *fault = QCoreApplication::translate("quotationRequests",
                                                 "Somebody else has just given out the number %1")
                         .arg(number);
        return written && !isTaken;
    }

    static QString requestStruct::*timeOf(occasion why)
    {
        return why == occasion::reminder ? &requestStruct::reminded : &requestStruct::sent;
    }

    // A message that is only written changes nothing.
    bool noteTime(occasion why, const requestStruct &request, QString *fault)
    {
        if (!m_with.start)
            return true;
        m_before = request.*timeOf(why);
        bool isThere = false;
        const bool written = change(
            [&](kiv_mat_offersStruct &offers) {
                requestStruct *kept = find(offers, request.number);
                isThere = kept != nullptr;
                if (!isThere)
                    return false;
                kept->*timeOf(why) = timeText(m_with.now);
                kept->to = request.to;
                return true;
            },
            fault);
        if (written && !isThere)
            *fault = noRequest(request.number);
        return written && isThere;
    }

    // Nothing of what failed stays; a message that cannot be started does, and is not noted as
    // sent.
    outcome finish(bool good, outcome done, occasion why = occasion::again)
    {
        if (!good) {
            for (const QString &file : qAsConst(done.files))
                files::removeFile(file);
            done.files.clear();
            return done;
        }
        done.isWritten = true;
        if (!m_with.start)
            return done;
        done.isStarted = m_with.start(done.files.last());
        if (done.isStarted)
            return done;
        done.fault =
            QCoreApplication::translate("quotationRequests",
                                        "The mail program cannot be started; the message is %1")
                .arg(QDir::toNativeSeparators(done.files.last()));
        QString fault;
        if (!change(
                [&](kiv_mat_offersStruct &offers) {
                    requestStruct *kept = find(offers, done.number);
                    if (!kept)
                        return false;
                    kept->*timeOf(why) = m_before;
                    if (m_toBefore)
                        kept->to = *m_toBefore;
                    return true;
                },
                &fault))
            done.fault += QLatin1String("; ") + fault;
        return done;
    }

    QStringList addressesOf(const requestStruct &request) const
    {
        const firmDetailsStruct *details =
            m_with.details ? detailsOf(*m_with.details, request.firm, request.nip) : nullptr;
        const QStringList now = details ? mail::addresses(details->email) : QStringList();
        return now.isEmpty() ? mail::addresses(request.to) : now;
    }

    QString refusalOf(occasion why, const requestStruct &request)
    {
        if (why == occasion::reminder && isAnswered(request, offers()))
            return QCoreApplication::translate("quotationRequests", "An offer has come for %1")
                .arg(request.number);
        if (mail::addresses(request.to).isEmpty())
            return QCoreApplication::translate("quotationRequests", "%1 has no e-mail address")
                .arg(request.firm);
        for (const QString &name : {request.document, request.table})
            if (keptFile(m_orderPath, name).isEmpty())
                return QCoreApplication::translate("quotationRequests", "%1 is missing")
                    .arg(QDir::toNativeSeparators(folder() + QLatin1Char('/') + name));
        return {};
    }

    QString m_orderPath;
    const means &m_with;
    configStruct &m_config;
    offersFile m_file;
    QString m_before;                  // when it was sent or reminded the last time
    std::optional<QString> m_toBefore; // and whereto; nothing for a new one
};

// Goes through firms or numbers, as far as progress lets it.
template <class List, class Function>
void forEach(const List &all, const progressFunction &progress, result *to, const Function &one)
{
    long long done = 0;
    const auto isCancelled = [&] {
        to->isCancelled = progress && !progress(done, (long long)(all.size()));
        return to->isCancelled;
    };
    for (const auto &each : all) {
        if (isCancelled())
            return;
        outcome of = one(each);
        if (!of.isWritten && isCancelled())
            return;
        to->firms.push_back(std::move(of));
        ++done;
    }
}

} // namespace

// --- What and whom to ask
// -------------------------------------------------------------------------

orderOffers::needs asked(const kiv_mat_zpStruct &order,
                         const std::optional<std::vector<int>> &lines)
{
    const auto &items = order.orderItems.items;
    const QSet<int> wanted = lines ? QSet<int>(lines->begin(), lines->end()) : QSet<int>();
    std::vector<int> bought;
    for (int place = 0; place < int(items.size()); ++place)
        if (!lines || wanted.contains(place))
            bought.push_back(place);
    // A part of the lines may have one unit of a material alone; its offers are compared under the
    // key of the whole order.
    QHash<int, QString> keys;
    for (const orderOffers::need &one : orderOffers::needsOf(order).all)
        for (const int line : one.lines)
            keys.insert(line, one.key);
    orderOffers::needs needs = orderOffers::needsOf(order, bought);
    for (orderOffers::need &one : needs.all)
        one.key = keys.value(one.lines.front());
    return needs;
}

std::vector<candidate> candidatesOf(const kiv_mat_firmStruct &firms,
                                    const kiv_mat_firmDetailsStruct &details,
                                    const orderOffers::needs &needs, const ktmIndex &materials,
                                    const kiv_mat_offersStruct &offers)
{
    QHash<QString, int> named;
    for (const orderOffers::need &need : needs.all) {
        const ktmIndex::entry *found = need.ktm.isEmpty() ? nullptr : materials.find(need.ktm);
        if (!found)
            continue;
        QSet<QString> names;
        for (const auto &one : found->material->manufacturers.items)
            names.insert(nameKey(one->name));
        for (const auto &one : found->material->suppliers.items)
            names.insert(nameKey(one->name));
        for (const QString &name : qAsConst(names))
            ++named[name];
    }
    std::vector<candidate> all;
    QMultiHash<QString, size_t> places;
    for (const auto *list : {&firms.suppliers.items, &firms.manufacturers.items})
        for (const auto &firm : *list) {
            const QString name = nameKey(firm->name);
            const QList<size_t> same = places.values(name);
            const auto known = std::find_if(same.begin(), same.end(), [&](size_t place) {
                return orderOffers::isSameFirm(all[place].firm, all[place].nip, firm->name,
                                               firm->nip);
            });
            if (name.isEmpty() || known != same.end()) {
                if (known != same.end() && all[*known].nip.isEmpty())
                    all[*known].nip = firm->nip.trimmed();
                continue;
            }
            places.insert(name, all.size());
            all.push_back(
                {firm->name.simplified(), firm->nip.trimmed(), {}, {}, named.value(name), {}, {}});
        }
    for (candidate &one : all) {
        const firmDetailsStruct *its = detailsOf(details, one.firm, one.nip);
        one.to = its ? mail::addresses(its->email) : QStringList();
        one.language = quotationForm::known(its ? its->language : QString());
        one.address = its ? its->address.simplified() : QString();
        if (const requestStruct *last = orderOffers::requestTo(offers, one.firm, one.nip))
            one.before = last->number;
    }
    std::stable_sort(all.begin(), all.end(), [](const candidate &a, const candidate &b) {
        return a.named != b.named ? a.named > b.named : a.firm.localeAwareCompare(b.firm) < 0;
    });
    return all;
}

QString faultOf(const candidate &of)
{
    return of.to.isEmpty()
               ? QCoreApplication::translate("quotationRequests", "%1 has no e-mail address")
                     .arg(of.firm)
               : QString();
}

QDate usualDeadline(const QDate &today) { return today.addDays(usualDays); }

QString nextNumber(const kiv_mat_zpStruct &order, const QString &orderPath,
                   const kiv_mat_offersStruct &offers)
{
    static const QRegularExpression form(QStringLiteral("/Z(\\d{1,9})$"));
    int highest = 0;
    for (const auto &one : offers.requests)
        highest = std::max(highest, form.match(one->number.trimmed()).captured(1).toInt());
    const QString number = order.options.value(optionKey::orderNumber).trimmed();
    return (number.isEmpty() ? QFileInfo(orderPath).completeBaseName() : number)
           + QStringLiteral("/Z%1").arg(highest + 1);
}

// --- Sending
// --------------------------------------------------------------------------------------

int result::written() const
{
    return int(std::count_if(firms.begin(), firms.end(),
                             [](const outcome &one) { return one.isWritten; }));
}

int result::started() const
{
    return int(std::count_if(firms.begin(), firms.end(),
                             [](const outcome &one) { return one.isStarted; }));
}

QStringList result::faults() const
{
    QStringList all;
    for (const outcome &one : firms)
        if (!one.fault.isEmpty())
            all.append(one.firm.isEmpty() ? one.fault : one.firm + QLatin1String(": ") + one.fault);
    return all;
}

result send(const batch &of, const means &with, configStruct &config)
{
    result all;
    QStringList refused;
    for (const candidate &one : of.firms)
        if (const QString fault = faultOf(one); !fault.isEmpty())
            refused.append(fault);
    const orderOffers::needs needs = asked(*of.order, of.lines);
    sender sending(of.orderPath, with, config);
    if (!refused.isEmpty())
        all.fault = refused.join(QLatin1String("; "));
    else if (of.firms.empty())
        all.fault = QCoreApplication::translate("quotationRequests", "No firm is chosen");
    else if (needs.all.empty())
        all.fault = QCoreApplication::translate("quotationRequests",
                                                "No line with a quantity is to be asked for");
    if (!all.fault.isEmpty() || !sending.begin(&all.fault))
        return all;
    mail::removeOldMessages();
    forEach(of.firms, with.progress, &all,
            [&](const candidate &one) { return sending.sendNew(of, one, needs); });
    return all;
}

result sendKept(occasion why, const QString &orderPath, const QStringList &numbers,
                const means &with, configStruct &config)
{
    result all;
    sender sending(orderPath, with, config);
    if (!sending.begin(&all.fault))
        return all;
    mail::removeOldMessages();
    forEach(numbers, with.progress, &all,
            [&](const QString &number) { return sending.sendKept(why, number); });
    return all;
}

QString keptFile(const QString &orderPath, const QString &name)
{
    const QFileInfo file(orderOffers::folderOf(orderPath) + QLatin1Char('/') + name);
    return !name.isEmpty() && file.fileName() == name && file.isFile() ? file.filePath()
                                                                       : QString();
}

// --- Who answered
// ---------------------------------------------------------------------------------

state stateOf(const requestStruct &of, const kiv_mat_offersStruct &offers, const QDate &today)
{
    if (isAnswered(of, offers))
        return state::answered;
    const QDate deadline = orderOffers::readDate(of.deadline);
    if (deadline.isValid() && deadline < today)
        return state::overdue;
    // A reminder takes the documents along.
    return of.sent.isEmpty() && of.reminded.isEmpty() ? state::unsent : state::waiting;
}

QString stateText(state of)
{
    switch (of) {
    case state::waiting:
        return QCoreApplication::translate("quotationRequests", "waiting");
    case state::overdue:
        return QCoreApplication::translate("quotationRequests", "overdue");
    case state::unsent:
        return QCoreApplication::translate("quotationRequests", "written only");
    default:
        return QCoreApplication::translate("quotationRequests", "offer came");
    }
}

std::vector<const requestStruct *> unanswered(const kiv_mat_offersStruct &offers)
{
    std::vector<const requestStruct *> all;
    for (const auto &one : offers.requests)
        if (!isAnswered(*one, offers))
            all.push_back(one.get());
    return all;
}

std::vector<const requestStruct *> overdue(const kiv_mat_offersStruct &offers, const QDate &today)
{
    std::vector<const requestStruct *> all = unanswered(offers);
    std::erase_if(all, [&](const requestStruct *one) {
        return stateOf(*one, offers, today) != state::overdue;
    });
    return all;
}

} // namespace quotationRequests
