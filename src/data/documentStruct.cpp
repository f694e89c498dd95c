#include "data/documentStruct.h"

#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/kiv_mat_offersStruct.h"
#include "data/streamValidation.h"
#include "util/paths.h"
#include "util/progressFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextCodec>

namespace fileKinds {

const fileKind *ofFile(const QString &filePath) { return headOf(filePath).kind; }

fileHead headOf(const QString &filePath)
{
    fileHead head;
    progressFile file(filePath, {});
    // A pipe or a device would be waited for.
    if (!QFileInfo(filePath).isFile() || !file.open(QIODevice::ReadOnly)) {
        head.fault = openingFault(file);
        return head;
    }
    head.fault = beginningFault(file);
    if (!head.fault.isEmpty())
        return head;
    QXmlStreamReader reader(&file);
    if (!readToElement(&reader)) {
        head.fault = readerFault(reader, file);
        return head;
    }
    for (const fileKind *kind : {&order, &database, &firm, &firmDetails, &config, &bom, &boms,
                                 &reservations, &orderStates, &offers, &info, &update})
        if (reader.name() == kind->root)
            head.kind = kind;
    if (!head.kind) {
        head.fault = QCoreApplication::translate("data", "is no file of this program");
        return head;
    }
    const QString named = attributeValue(&reader, QStringLiteral("noNamespaceSchemaLocation"));
    head.schema = head.kind == &config && !named.isEmpty() ? named : head.kind->schema;
    const QString type = attributeValue(&reader, QStringLiteral("type"));
    if (!reader.namespaceUri().isEmpty())
        head.otherForm = QCoreApplication::translate("data", "%1 is no file of this program")
                             .arg(head.kind->root);
    else if (!type.isEmpty() && type.section(QLatin1Char(':'), -1) != head.kind->xsiType)
        head.otherForm = QCoreApplication::translate("data", "%1 is no version of %2")
                             .arg(type, head.kind->root);
    return head;
}

} // namespace fileKinds

QString readerFault(const QXmlStreamReader &reader, const progressFile &file, const QString &schema)
{
    // Not when it was cancelled, and a reader that is stricter is alone with its fault.
    fileFault fault;
    if (!file.cancelled())
        fault = validateStreaming(file.fileName(), paths::schema(schema), 1).formFault;
    if (fault.text.isEmpty())
        fault = {int(reader.lineNumber()),
                 int(reader.columnNumber()),
                 file.tooManyAttributes() ? tooManyAttributes() : reader.errorString(),
                 {}};
    return fault.placed();
}

QString openingFault(const QFile &file)
{
    const QFileInfo info(file);
    if (!info.exists())
        return QCoreApplication::translate("data", "there is no such file");
    if (info.isDir())
        return QCoreApplication::translate("data", "is a folder");
    if (!info.isFile())
        return QCoreApplication::translate("data", "is no file");
    const QString fault = QCoreApplication::translate("data", "the file cannot be read");
    return file.error() == QFileDevice::NoError ? fault
                                                : fault + QLatin1String(": ") + file.errorString();
}

QString beginningFault(QIODevice &file)
{
    constexpr int enough = 512;
    QByteArray start = file.peek(enough);
    if (start.isEmpty())
        return QCoreApplication::translate("data", "the file is empty");
    const bool wide = start.startsWith("\xff\xfe") || start.startsWith("\xfe\xff")
                      || start.startsWith(QByteArray("<\0", 2))
                      || start.startsWith(QByteArray("\0<", 2));
    start.replace(QByteArray(1, '\0'), QByteArray());
    const QRegularExpressionMatch declaration =
        QRegularExpression(QStringLiteral("<\\?xml[^>]*\\sencoding\\s*=\\s*[\"']([^\"'>]*)[\"']"))
            .match(QString::fromLatin1(start));
    const QString name = declaration.captured(1);
    if (name.isEmpty())
        return {};
    const QString upper = name.toUpper();
    const bool saysWide = upper.startsWith(QLatin1String("UTF-16"))
                          || upper.startsWith(QLatin1String("UTF-32"))
                          || upper.startsWith(QLatin1String("ISO-10646-UCS"));
    if (wide && !saysWide)
        return QCoreApplication::translate("data", "the file is UTF-16 but says that it is %1")
            .arg(name);
    if (!wide && saysWide)
        return QCoreApplication::translate("data", "the file says that it is %1 but is not")
            .arg(name);
    if (!QTextCodec::codecForName(name.toLatin1()))
        return QCoreApplication::translate("data", "the encoding %1 is not known").arg(name);
    return {};
}

documentStruct::documentStruct(const fileKind &kind)
    : schemaLocation(kind.schema)
    , xsiNamespace(fileKinds::xsiNamespace)
    , xsiType(kind.xsiType)
    , m_kind(kind)
{
}

int documentStruct::writeXml(QXmlStreamWriter *writer) const
{
    writer->writeStartElement(m_kind.root);
    writer->writeAttribute(QStringLiteral("xsi:noNamespaceSchemaLocation"), schemaLocation);
    writer->writeAttribute(QStringLiteral("xmlns:xsi"), xsiNamespace);
    writer->writeAttribute(QStringLiteral("xsi:type"), xsiType);
    const int result = writeContent(writer);
    if (result >= 0)
        writer->writeEndElement();
    return result;
}
