// Checks files against their schemas and tells the user what is wrong with them.
#pragma once

#include "data/streamValidation.h"

#include <QAbstractMessageHandler>

#include <memory>

class QXmlSchemaValidator;

class XmlValidator : public QAbstractMessageHandler
{
    Q_OBJECT
public:
    XmlValidator();
    ~XmlValidator() override;

    // Whether the schema loads and the document is valid. The streaming validator looks first; when
    // it refuses a file of up to 1 MB, QXmlSchemaValidator gives the verdict and its messages,
    // above that size the streaming validator's own stand. With showMessages the first few are
    // shown to the user, one box each, with line and column; a schema that does not load shows
    // none.
    // progress as in validateStreaming().
    bool validate(const QString &xmlPath, const QString &xsdPath, bool showMessages,
                  const progressFunction &progress = {});

    // What the streaming validator said in the last validate(): plain text, for lists.
    const validationResult &details() const { return m_details; }
    // The first of it with its line and column, as one text; empty when it said nothing.
    QString fault() const;

protected:
    void handleMessage(QtMsgType type, const QString &description, const QUrl &identifier,
                       const QSourceLocation &sourceLocation) override;

private:
    bool secondLook(const QString &xmlPath, const QString &xsdPath);
    void show(const QString &html, qint64 line, qint64 column);
    void showRest();

    std::unique_ptr<QXmlSchemaValidator> m_validator;
    validationResult m_details;
    bool m_showMessages = false;
    int m_messageCount = 0;
};

// One such validation.
bool validateXml(const QString &xmlPath, const QString &xsdPath, bool showMessages,
                 const progressFunction &progress = {});

// Whether a KTM index or a CPV code has the right form. The forms stand in
// "_validator/kiv_mat.xsd"; no message is shown. False also when a file that is needed for it
// cannot be written.
bool checkKtm(const QString &value);
bool checkCpv(const QString &value);
// The same by validating a file that holds the value in an element "ktm" or "cpv": slow, and what
// the others fall back upon.
bool checkByFile(const QString &element, const QString &value);
