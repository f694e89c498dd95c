// mail: a message with an order, the databases or the BOM lists, for the desktop's mail composer.
#include "cli/arguments.h"

#include "data/configStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "mail/mail.h"
#include "report/orderReport.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/scratch.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace cli {

namespace {

// What goes to the log is for the user's eyes here too.
class logToError : public prompts
{
public:
    logToError()
        : m_before(installPrompts(this))
    {
    }
    ~logToError() override { installPrompts(m_before); }
    void log(const QString &html) override
    {
        err() << text::htmlToPlain(html).trimmed() << '\n' << Qt::flush;
    }

private:
    prompts *m_before;
};

// The description of an order's message; empty, with the fault printed, when it was not made.
QString orderMessage(const QString &path, const QStringList &databasePaths,
                     const configStruct &config, int *code)
{
    kiv_mat_zpStruct order;
    databaseSet databases;
    *code = refused;
    if (!readFile(path, &order, QCoreApplication::translate("cli", "is no order"))
        || !databases.load(databasePaths))
        return {};
    const QString pdf = mail::pdfPath(order);
    *code = writePage(orderReport(order, databases.index()), pdf, orderTitle(order));
    if (*code != done)
        return {};
    QString description = mail::writeOrder(order, config, QFileInfo(path).absoluteFilePath(), pdf);
    if (description.isEmpty())
        *code = cannotWrite(mail::folder());
    return description;
}

int runMail(const QStringList &arguments)
{
    parser options(mailCommand, QStringLiteral("[ORDER]"), 0, 1);
    const QCommandLineOption database = databaseOption(QCoreApplication::translate(
        "cli",
        "A material database, for manufacturers and suppliers. May be given several times."));
    const QCommandLineOption databases(
        QStringLiteral("databases"),
        QCoreApplication::translate("cli", "Send the program's databases instead of an order."));
    const QCommandLineOption boms(
        QStringLiteral("boms"),
        QCoreApplication::translate("cli", "Send the program's BOM lists instead of an order."));
    const QCommandLineOption onlyWrite(
        QStringLiteral("only-write"),
        QCoreApplication::translate("cli", "Write the message and start no mail program."));
    for (const QCommandLineOption &option : {database, databases, boms, onlyWrite})
        options.addOption(option);
    if (!options.accept(arguments))
        return options.code();
    const QStringList orders = options.positionalArguments();
    if (orders.size() + options.isSet(databases) + options.isSet(boms) != 1)
        return refuseCall(mailCommand, QCoreApplication::translate(
                                           "cli", "give one of an order, --databases and --boms"));

    const logToError logged;
    configStruct config;
    if (!loadConfiguration(&config))
        return refused;
    int code = refused;
    // The files stay: the composer reads them when the message is sent.
    const QString description =
        orders.isEmpty() ? mail::writeData(options.isSet(boms) ? mail::contents::boms
                                                               : mail::contents::databases,
                                           config, [](const QString &) {})
                         : orderMessage(orders.first(), options.values(database), config, &code);
    if (description.isEmpty())
        return code;
    scratch::leave();
    out() << description << '\n' << Qt::flush;
    if (options.isSet(onlyWrite) || mail::start(description, config))
        return done;
    err() << mail::programFor(config) << ": "
          << QCoreApplication::translate("cli", "cannot be started") << '\n'
          << Qt::flush;
    return refused;
}

} // namespace

const subcommand mailCommand{
    "mail",
    QT_TRANSLATE_NOOP("cli", "Opens the mail composer with an order and its PDF, or with the "
                             "databases or BOM lists; prints the message's description file."),
    runMail};

} // namespace cli
