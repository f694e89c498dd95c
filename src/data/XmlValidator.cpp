#include "data/XmlValidator.h"

#include "data/codeForms.h"
#include "data/documentStruct.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/scratch.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

// Boxes shown for one file; a last one counts the rest.
constexpr int maxBoxes = 3;

// The document that carries one value to its check.
class checkDocument : public xmlData
{
public:
    checkDocument(const QString &element, const QString &value)
        : m_element(element)
        , m_value(value)
    {
    }
    int writeXml(QXmlStreamWriter *writer) const override
    {
        writer->writeStartElement(QStringLiteral("kiv_check"));
        writer->writeAttribute(QStringLiteral("xsi:noNamespaceSchemaLocation"),
                               QStringLiteral("kiv_mat.xsd"));
        writer->writeAttribute(QStringLiteral("xmlns:xsi"), fileKinds::xsiNamespace);
        writer->writeAttribute(QStringLiteral("xsi:type"), QStringLiteral("KIV_CHECK_1"));
        writer->writeTextElement(m_element, m_value);
        writer->writeEndElement();
        return 0;
    }

private:
    QString m_element;
    QString m_value;
};

} // namespace

bool XmlValidator::validate(const QString &xmlPath, const QString &xsdPath, bool showMessages,
                            const progressFunction &progress)
{
    constexpr int keptMessages = 100;
    m_details = validateStreaming(xmlPath, xsdPath, keptMessages, progress);
    if (!showMessages)
        return m_details.valid;
    const int boxes = std::min<int>(maxBoxes, m_details.messages.size());
    for (int i = 0; i < boxes; ++i)
        handleMessage(QFileInfo(xmlPath).fileName(), m_details.messages.at(i));
    if (m_details.messageCount > boxes)
        userPrompts().showError(tr("and %n more", nullptr, m_details.messageCount - boxes));
    return m_details.valid;
}

QString XmlValidator::fault() const
{
    return m_details.messages.isEmpty() ? QString() : m_details.messages.first().placed();
}

void XmlValidator::handleMessage(const QString &file, const fileFault &message)
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText(file + QLatin1String(": ") + message.sentence());
    cursor.insertHtml(QStringLiteral("<br>%1: %2<br>%3: %4<br>")
                          .arg(tr("Line"))
                          .arg(message.line)
                          .arg(tr("Column"))
                          .arg(message.column));
    userPrompts().showError(document.toHtml());
}

bool validateXml(const QString &xmlPath, const QString &xsdPath, bool showMessages,
                 const progressFunction &progress)
{
    return XmlValidator().validate(xmlPath, xsdPath, showMessages, progress);
}

bool checkByFile(const QString &element, const QString &value)
{
    const QTemporaryDir folder(scratch::pattern());
    QFile file(folder.path() + QLatin1String("/1.xml"));
    if (!folder.isValid() || !file.open(QIODevice::WriteOnly))
        return false;
    QXmlStreamWriter writer(&file);
    writer.setCodec("UTF-8");
    writer.setAutoFormatting(true);
    writer.writeStartDocument(QStringLiteral("1.0"));
    checkDocument(element, value).writeXml(&writer);
    writer.writeEndDocument();
    file.close();
    return !writer.hasError()
           && validateXml(file.fileName(), paths::schema(QStringLiteral("kiv_mat.xsd")), false);
}

namespace {

bool checkValue(const QString &element, const QString &value)
{
    const std::optional<bool> known =
        codeForms::matches(element, value, paths::schema(QStringLiteral("kiv_mat.xsd")));
    return known ? *known : checkByFile(element, value);
}

} // namespace

bool checkKtm(const QString &value) { return checkValue(QStringLiteral("ktm"), value); }

bool checkCpv(const QString &value) { return checkValue(QStringLiteral("cpv"), value); }
