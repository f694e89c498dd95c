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

orderDocument::orderDocument()
    : m_order(std::make_unique<kiv_mat_zpStruct>())
{
}

orderDocument &orderDocument::instance()
{
    static orderDocument document;
    return document;
}

// The document belongs to that file from now on, and this program claims it where it can.
void orderDocument::settle(const QString &path)
{
    m_onDisk = fileState::of(path);
    m_modified = false;
    if (path == m_path && (m_lock || path.isEmpty()))
        return;
    m_path = path;
    m_lock.reset();
    m_otherUser.clear();
    if (path.isEmpty())
        return;
    const QFileInfo info(path);
    m_lock = std::make_unique<QLockFile>(info.absolutePath() + QLatin1String("/.") + info.fileName()
                                         + QLatin1String(".lock"));
    // Only the lock of a dead program is void, however old it is.
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock())
        return;
    qint64 process = 0;
    QString host;
    QString program;
    if (m_lock->error() == QLockFile::LockFailedError
        && m_lock->getLockInfo(&process, &host, &program))
        m_otherUser = QStringLiteral("%1, %2, %3").arg(program, host).arg(process);
    m_lock.reset();
}

QString orderDocument::folder() const
{
    const configStruct &config = programData::instance().config();
    const QString known =
        m_path.isEmpty() ? paths::data(config.options.value(optionKey::fileLastZp)) : m_path;
    return QFileInfo(known).absolutePath();
}

bool orderDocument::load(const QString &path, bool showMessages)
{
    auto order = std::make_unique<kiv_mat_zpStruct>();
    QString reason;
    const bool read = programData::instance().schemaIsThere(fileKinds::order)
                      && readChecked(path, order.get(), &reason, {}, showMessages);
    m_order = read ? std::move(order) : std::make_unique<kiv_mat_zpStruct>();
    settle(read ? path : QString());
    if (read) {
        userPrompts().log(messages::done(messages::openFile(), text::fileNameOfPath(path), path));
        listFaults();
    } else {
        userPrompts().listError(messages::failed(messages::fileCorrupted(), path, reason));
    }
    return read;
}

bool orderDocument::recover(const QString &copy, const QString &path)
{
    auto order = std::make_unique<kiv_mat_zpStruct>();
    if (!readChecked(copy, order.get()))
        return false;
    m_order = std::move(order);
    settle(path);
    m_modified = true;
    return true;
}

void orderDocument::startNew()
{
    m_order = std::make_unique<kiv_mat_zpStruct>();
    m_order->initialise(programData::instance().config());
    settle({});
}

bool orderDocument::save(const QString &path)
{
    if (!saveDocument(path, *m_order, programData::instance().config()))
        return false;
    settle(path);
    return true;
}

bool orderDocument::changedOnDisk() const
{
    return !m_path.isEmpty() && !(fileState::of(m_path) == m_onDisk);
}

void orderDocument::listFaults() const
{
    const orderOperations::lineFaults faults =
        orderOperations::faultsOf(*m_order, programData::instance().materials());
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

QString orderDocument::report() const
{
    return orderReport(*m_order, programData::instance().materials());
}
