#include "shell/orderDocument.h"

#include "data/programData.h"
#include "report/orderReport.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/text.h"

orderDocument::orderDocument()
    : m_order(std::make_unique<kiv_mat_zpStruct>())
{
}

orderDocument &orderDocument::instance()
{
    static orderDocument document;
    return document;
}

bool orderDocument::load(const QString &path, bool showMessages)
{
    auto order = std::make_unique<kiv_mat_zpStruct>();
    QString reason;
    const bool read = programData::instance().schemaIsThere(fileKinds::order)
                      && readChecked(path, order.get(), &reason, {}, showMessages);
    m_order = read ? std::move(order) : std::make_unique<kiv_mat_zpStruct>();
    m_path = read ? path : QString();
    if (read)
        userPrompts().log(messages::done(messages::openFile(), text::fileNameOfPath(path), path));
    else
        userPrompts().listError(messages::failed(messages::fileCorrupted(), path, reason));
    return read;
}

QString orderDocument::report() const
{
    return orderReport(*m_order, programData::instance().materials());
}
