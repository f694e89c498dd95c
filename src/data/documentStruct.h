// What all files have in common: a root element that names the format's version and schema, and the
// table of the kinds of file.
#pragma once

#include "data/xmlData.h"

class QFile;
class QIODevice;
class progressFile;

// One kind of file.
struct fileKind
{
    QString root;    // root element
    QString xsiType; // version string of the format
    QString schema;  // schema file in "_validator/"
};

// The kinds of file that have a record.
namespace fileKinds {
inline const fileKind order{QStringLiteral("kiv_mat_zp"), QStringLiteral("KIV_MAT_ZP_1"),
                            QStringLiteral("kiv_mat.xsd")};
inline const fileKind database{QStringLiteral("kiv_mat_database"),
                               QStringLiteral("KIV_MAT_DATABASE_1"), QStringLiteral("kiv_mat.xsd")};
inline const fileKind firm{QStringLiteral("kiv_mat_firm"), QStringLiteral("KIV_MAT_FIRM_1"),
                           QStringLiteral("kiv_mat.xsd")};
inline const fileKind config{QStringLiteral("kiv_config"), QStringLiteral("KIV_CONFIG_1"),
                             QStringLiteral("kiv.xsd")};
inline const fileKind bom{QStringLiteral("kiv_mat_bom"), QStringLiteral("KIV_MAT_BOM_1"),
                          QStringLiteral("kiv_mat.xsd")};
inline const fileKind boms{QStringLiteral("kiv_mat_boms"), QStringLiteral("KIV_MAT_BOMS_1"),
                           QStringLiteral("kiv_mat_boms.xsd")};
inline const fileKind reservations{QStringLiteral("kiv_mat_reservations"),
                                   QStringLiteral("KIV_MAT_RESERVATIONS_1"),
                                   QStringLiteral("kiv_mat_reservations.xsd")};
inline const fileKind orderStates{QStringLiteral("kiv_mat_order_states"),
                                  QStringLiteral("KIV_MAT_ORDER_STATES_1"),
                                  QStringLiteral("kiv_mat_order_states.xsd")};
inline const fileKind info{QStringLiteral("kiv_info"), QStringLiteral("KIV_INFO_1"),
                           QStringLiteral("kiv_info.xsd")};
inline const fileKind update{QStringLiteral("kiv_update"), QStringLiteral("KIV_UPDATE_1"),
                             QStringLiteral("kiv_update.xsd")};

inline const QString xsiNamespace =
    QStringLiteral("http://www.w3.org/2001/XMLSchema-instance"); // of the root attributes

// The kind whose root element the file has; null when the file cannot be read or parsed that far,
// or has another root.
const fileKind *ofFile(const QString &filePath);

// What the beginning of a file tells.
struct fileHead
{
    const fileKind *kind = nullptr; // as ofFile()
    QString schema;                 // of that kind; a configuration names its own
    QString fault;                  // why there is no kind
    // Why it is of that kind by name only: of a foreign namespace, or an unknown version.
    QString otherForm;
};
fileHead headOf(const QString &filePath);
} // namespace fileKinds

// Why a file cannot be opened at all.
QString openingFault(const QFile &file);

// Why a file cannot be read that is empty, or whose encoding is not the one it declares or none
// that is known; empty when its beginning says nothing of the kind. Reads nothing.
QString beginningFault(QIODevice &file);

// Why a reader could not read a file, with line and column, in the words of the validation.
QString readerFault(const QXmlStreamReader &reader, const progressFile &file,
                    const QString &schema = QStringLiteral("kiv_mat.xsd"));

class documentStruct : public xmlData
{
public:
    explicit documentStruct(const fileKind &kind);

    // As in the file's root element; a new document has those of its kind. What a file says is
    // written back, not compared.
    QString schemaLocation;
    QString xsiNamespace; // always the XML Schema instance namespace
    QString xsiType;
    // Set by the loader before parsing: the file name, and the path as it was given.
    QString fileName;
    QString filePath;

    // What the loader found in the file and this record has no place for. While there is any,
    // saving is refused: whoever was told of it empties this.
    leftOutContent leftOut;

    const fileKind &kind() const { return m_kind; }
    virtual tagHandlerList tagHandlers() = 0;

    // The root element with its attributes and the content. Stops at the first negative result.
    int writeXml(QXmlStreamWriter *writer) const final;

protected:
    virtual int writeContent(QXmlStreamWriter *writer) const = 0;

private:
    const fileKind &m_kind;
};
