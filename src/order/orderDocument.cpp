#include "order/orderDocument.h"

#include "data/programData.h"
#include "data/vocabulary.h"
#include "order/orderOperations.h"
#include "report/orderReport.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFileInfo>

orderDocument::orderDocument(programData &known)
    : m_known(known)
    , m_order(std::make_unique<kiv_mat_zpStruct>())
{
}

void orderDocument::settle(std::unique_ptr<kiv_mat_zpStruct> order, const QString &path)
{
    m_order = std::move(order);
    m_path = path;
    m_onDisk = fileState::of(path);
}

QString orderDocument::folder() const
{
    const configStruct &config = m_known.config();
    const QString known =
        m_path.isEmpty() ? paths::data(config.options.value(optionKey::fileLastZp)) : m_path;
    return QFileInfo(known).absolutePath();
}

// Null, with the fault listed, when the file cannot be read.
std::unique_ptr<kiv_mat_zpStruct> orderDocument::read(const QString &path, bool showMessages) const
{
    auto order = std::make_unique<kiv_mat_zpStruct>();
    QString reason;
    if (m_known.schemaIsThere(fileKinds::order)
        && readChecked(path, order.get(), &reason, {}, showMessages)) {
        userPrompts().log(messages::done(messages::openFile(), text::fileNameOfPath(path), path));
        return order;
    }
    userPrompts().listError(messages::failed(messages::fileCorrupted(), path, reason));
    return nullptr;
}

bool orderDocument::load(const QString &path, bool showMessages)
{
    auto order = read(path, showMessages);
    const bool found = order != nullptr;
    settle(found ? std::move(order) : std::make_unique<kiv_mat_zpStruct>(),
           found ? path : QString());
    if (found)
        listFaults();
    return found;
}

bool orderDocument::reload()
{
    auto order = read(m_path, true);
    if (!order)
        return false;
    settle(std::move(order), m_path);
    listFaults();
    return true;
}

bool orderDocument::recover(const QString &copy, const QString &path, const fileState &onDisk)
{
    auto order = std::make_unique<kiv_mat_zpStruct>();
    if (!readChecked(copy, order.get()))
        return false;
    settle(std::move(order), path);
    // Saving asks about what others wrote since.
    m_onDisk = onDisk;
    return true;
}

void orderDocument::startNew()
{
    auto order = std::make_unique<kiv_mat_zpStruct>();
    order->initialise(m_known.config());
    settle(std::move(order), {});
}

bool orderDocument::save(const QString &path, QString *fault)
{
    if (!saveDocument(path, *m_order, m_known.config(), {}, fault))
        return false;
    m_path = path;
    m_onDisk = fileState::of(path);
    return true;
}

void orderDocument::listFaults() const
{
    const orderOperations::lineFaults faults =
        orderOperations::faultsOf(*m_order, m_known.materials());
    const auto list = [](const QString &heading, const QStringList &ktms) {
        if (ktms.isEmpty())
            return;
        QString lines = heading.toHtmlEscaped() + QLatin1String("<br>");
        for (const QString &ktm : ktms)
            lines += QLatin1String("<b>") + ktm.toHtmlEscaped() + QLatin1String("</b><br>");
        userPrompts().listError(lines);
    };
    list(QCoreApplication::translate("orderDocument", "Materials does not exist in database:"),
         faults.unknown);
    list(QCoreApplication::translate("orderDocument", "Materials does not has valid status:"),
         faults.withoutStatus);
}

QString orderDocument::report() const { return orderReport(*m_order, m_known.materials(),
                       m_known.config().options.value(optionKey::vatRate)); }
