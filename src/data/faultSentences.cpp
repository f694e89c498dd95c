#include "data/faultSentences.h"

#include "data/recordTrail.h"

#include <QCoreApplication>

#include <libxml/xmlerror.h>

namespace {

QString text(const char *source) { return QCoreApplication::translate("data", source); }

QString name(std::string_view element)
{
    return QString::fromUtf8(element.data(), int(element.size()));
}

bool says(const xmlError &error, const char *part)
{
    return QByteArray::fromRawData(error.message, int(qstrlen(error.message))).contains(part);
}

QString schemaSentence(const xmlError &error, const recordTrail &trail)
{
    const QString value = QString::fromUtf8(error.str1);
    const QString element = name(trail.element());
    switch (error.code) {
    case XML_SCHEMAV_ELEMENT_CONTENT:
        if (says(error, "Missing"))
            return text(QT_TRANSLATE_NOOP("data", "%1 lacks a field")).arg(element);
        return trail.isRecord(trail.element())
                   ? text(QT_TRANSLATE_NOOP("data", "%1 does not belong into %2"))
                         .arg(element, name(trail.parent()))
                   : text(QT_TRANSLATE_NOOP("data", "unknown field %1")).arg(element);
    case XML_SCHEMAV_CVC_COMPLEX_TYPE_2_1:
    case XML_SCHEMAV_CVC_COMPLEX_TYPE_2_3:
    case XML_SCHEMAV_CVC_TYPE_3_1_2:
        return says(error, "Character")
                   ? text(QT_TRANSLATE_NOOP("data", "text in %1, where none belongs")).arg(element)
                   : text(QT_TRANSLATE_NOOP("data", "%1 in %2, which holds no elements"))
                         .arg(element, name(trail.parent()));
    case XML_SCHEMAV_CVC_COMPLEX_TYPE_3_2_1:
    case XML_SCHEMAV_CVC_TYPE_3_1_1:
        return text(QT_TRANSLATE_NOOP("data", "unknown attribute %1 of %2")).arg(value, element);
    case XML_SCHEMAV_CVC_ELT_1:
        return text(QT_TRANSLATE_NOOP("data", "%1 is no file of this program")).arg(element);
    case XML_SCHEMAV_CVC_ELT_4_2:
    case XML_SCHEMAV_CVC_ELT_4_3:
        return text(QT_TRANSLATE_NOOP("data", "%1 is no version of %2")).arg(value, element);
    case XML_SCHEMAV_CVC_PATTERN_VALID:
        return text(QT_TRANSLATE_NOOP("data", "\"%1\" has not the form of %2")).arg(value, element);
    default:
        return {};
    }
}

QString formSentence(const xmlError &error)
{
    const QString value = QString::fromUtf8(error.str1);
    switch (error.code) {
    case XML_ERR_TAG_NAME_MISMATCH:
        return text(QT_TRANSLATE_NOOP("data", "%1, which began in line %2, ends as %3"))
            .arg(value)
            .arg(error.int1)
            .arg(QString::fromUtf8(error.str2));
    case XML_ERR_TAG_NOT_FINISHED:
        return text(QT_TRANSLATE_NOOP("data", "the file ends in %1, which began in line %2"))
            .arg(value)
            .arg(error.int1);
    case XML_ERR_GT_REQUIRED:
        return text(QT_TRANSLATE_NOOP("data", "a tag has no end"));
    case XML_ERR_NAME_REQUIRED:
        return says(error, "EntityRef")
                   ? text(QT_TRANSLATE_NOOP("data", "\"&\" stands alone; it is written &amp;"))
                   : text(QT_TRANSLATE_NOOP("data", "\"<\" stands alone; it is written &lt;"));
    case XML_ERR_ENTITYREF_SEMICOL_MISSING:
        return text(QT_TRANSLATE_NOOP("data", "\"&\" stands alone; it is written &amp;"));
    case XML_ERR_LT_IN_ATTRIBUTE:
        return text(QT_TRANSLATE_NOOP("data", "\"<\" stands alone; it is written &lt;"));
    case XML_ERR_SPACE_REQUIRED:
    case XML_ERR_ATTRIBUTE_WITHOUT_VALUE:
    case XML_ERR_ATTRIBUTE_NOT_STARTED:
    case XML_ERR_ATTRIBUTE_NOT_FINISHED:
        return text(QT_TRANSLATE_NOOP("data", "an attribute is broken"));
    case XML_ERR_UNDECLARED_ENTITY:
    case XML_WAR_UNDECLARED_ENTITY:
        return text(QT_TRANSLATE_NOOP("data", "&%1; is not known")).arg(value);
    case XML_ERR_INVALID_CHAR:
        return says(error, "UTF-8")
                   ? text(QT_TRANSLATE_NOOP("data", "a byte that is no UTF-8, as in a file of "
                                                    "Windows-1250"))
                   : text(QT_TRANSLATE_NOOP("data", "a character that no file can hold: code %1"))
                         .arg(error.int1);
    case XML_ERR_INVALID_ENCODING:
        return text(QT_TRANSLATE_NOOP("data", "a byte that is not of the file's encoding"));
    case XML_ERR_ATTRIBUTE_REDEFINED:
        return text(QT_TRANSLATE_NOOP("data", "the attribute %1 stands twice")).arg(value);
    case XML_NS_ERR_UNDEFINED_NAMESPACE:
        return text(QT_TRANSLATE_NOOP("data", "the prefix %1 is not declared")).arg(value);
    case XML_ERR_COMMENT_NOT_FINISHED:
        return text(QT_TRANSLATE_NOOP("data", "a comment has no end"));
    case XML_ERR_CDATA_NOT_FINISHED:
        return text(QT_TRANSLATE_NOOP("data", "a CDATA section has no end"));
    case XML_ERR_RESERVED_XML_NAME:
        return text(QT_TRANSLATE_NOOP("data", "the file begins a second time"));
    case XML_ERR_DOCUMENT_EMPTY:
        return text(QT_TRANSLATE_NOOP("data", "is no XML"));
    case XML_ERR_DOCUMENT_END:
        return text(QT_TRANSLATE_NOOP("data", "there is more behind the end of the document"));
    default:
        return {};
    }
}

} // namespace

QString faultSentence(const _xmlError &error, const recordTrail &trail)
{
    const QString sentence =
        error.domain == XML_FROM_SCHEMASV ? schemaSentence(error, trail) : formSentence(error);
    return sentence.isEmpty() ? text(QT_TRANSLATE_NOOP("data", "not in the form of a file: %1"))
                                    .arg(QString::fromUtf8(error.message).simplified())
                              : sentence;
}
