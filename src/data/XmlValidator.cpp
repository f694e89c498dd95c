#include "data/XmlValidator.h"

#include "data/codeForms.h"
#include "data/documentStruct.h"
#include "data/schemaCache.h"
#include "util/paths.h"
#include "util/prompts.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QSourceLocation>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

namespace {

// QXmlSchemaValidator needs minutes and gigabytes for a large faulty file.
constexpr qint64 secondLookLimit = 1 << 20;
// Boxes shown for one file; a last one counts the rest.
constexpr int maxBoxes = 3;

// A document may name a schema at a web address, and QXmlSchemaValidator would fetch it. It goes on
// without one that does not exist, so every request is for such a one.
class noNetwork : public QNetworkAccessManager
{
protected:
    QNetworkReply *createRequest(Operation, const QNetworkRequest &, QIODevice *) override
    {
        const QNetworkRequest nothing(QUrl(QStringLiteral("qrc:/nothing")));
        return QNetworkAccessManager::createRequest(GetOperation, nothing, nullptr);
    }
};

class silence : public QAbstractMessageHandler
{
protected:
    void handleMessage(QtMsgType, const QString &, const QUrl &, const QSourceLocation &) override
    {
    }
};

bool hasDocumentType(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    return !readToElement(&reader) && reader.error() == QXmlStreamReader::CustomError;
}

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

XmlValidator::XmlValidator()
    : m_validator(std::make_unique<QXmlSchemaValidator>())
{
}

XmlValidator::~XmlValidator() = default;

bool XmlValidator::validate(const QString &xmlPath, const QString &xsdPath, bool showMessages,
                            const progressFunction &progress)
{
    m_showMessages = showMessages;
    m_messageCount = 0;
    constexpr int keptMessages = 100;
    m_details = validateStreaming(xmlPath, xsdPath, keptMessages, progress);
    if (!m_details.schemaLoaded || m_details.valid)
        return m_details.valid;

    bool valid = false;
    if (!m_details.refusedOutright && QFileInfo(xmlPath).size() <= secondLookLimit) {
        valid = secondLook(xmlPath, xsdPath);
    } else if (showMessages) {
        for (const validationMessage &message : qAsConst(m_details.messages))
            show(message.text.toHtmlEscaped(), message.line, message.column);
        m_messageCount = m_details.messageCount;
    }
    showRest();
    return valid;
}

QString XmlValidator::fault() const
{
    if (m_details.messages.isEmpty())
        return {};
    const validationMessage &first = m_details.messages.first();
    return first.line == 0 ? first.text
                           : QCoreApplication::translate("data", "line %1, column %2: %3")
                                 .arg(first.line)
                                 .arg(first.column)
                                 .arg(first.text);
}

bool XmlValidator::secondLook(const QString &xmlPath, const QString &xsdPath)
{
    static schemaCache<QXmlSchema> schemas;
    static noNetwork network;
    static silence silent;

    QFile file(xmlPath);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray xml = file.readAll();
    if (hasDocumentType(xml))
        return false;
    const QXmlSchema schema = schemas.get(xsdPath, [&](const QByteArray &xsd) {
        QXmlSchema compiled;
        compiled.setMessageHandler(&silent);
        compiled.setNetworkAccessManager(&network);
        compiled.load(xsd, QUrl::fromLocalFile(xsdPath));
        return compiled;
    });
    if (!schema.isValid())
        return false;
    m_validator->setSchema(schema);
    m_validator->setNetworkAccessManager(&network);
    m_validator->setMessageHandler(m_showMessages ? static_cast<QAbstractMessageHandler *>(this)
                                                  : &silent);
    return m_validator->validate(xml, QUrl::fromLocalFile(xmlPath));
}

void XmlValidator::handleMessage(QtMsgType, const QString &description, const QUrl &,
                                 const QSourceLocation &sourceLocation)
{
    show(description, sourceLocation.line(), sourceLocation.column());
}

void XmlValidator::show(const QString &html, qint64 line, qint64 column)
{
    if (++m_messageCount > maxBoxes)
        return;
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertHtml(html);
    cursor.insertHtml(QStringLiteral("<br>%1: %2<br>%3: %4<br>")
                          .arg(tr("Line"))
                          .arg(line)
                          .arg(tr("Column"))
                          .arg(column));
    userPrompts().showError(document.toHtml());
}

void XmlValidator::showRest()
{
    if (m_showMessages && m_messageCount > maxBoxes)
        userPrompts().showError(tr("and %n more", nullptr, m_messageCount - maxBoxes));
}

bool validateXml(const QString &xmlPath, const QString &xsdPath, bool showMessages,
                 const progressFunction &progress)
{
    return std::make_unique<XmlValidator>()->validate(xmlPath, xsdPath, showMessages, progress);
}

bool checkByFile(const QString &element, const QString &value)
{
    const QTemporaryDir folder;
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
