// Checks files against their schemas and tells the user what is wrong with them.
#pragma once

#include "data/streamValidation.h"

#include <QCoreApplication>

class XmlValidator
{
    Q_DECLARE_TR_FUNCTIONS(XmlValidator)
public:
    // Whether the schema loads and the document is valid. With showMessages the first few faults
    // are shown to the user, one box each, with line and column; a schema that does not load shows
    // none. progress as in validateStreaming().
    bool validate(const QString &xmlPath, const QString &xsdPath, bool showMessages,
                  const progressFunction &progress = {});

    // What the last validate() found: plain text, for lists.
    const validationResult &details() const { return m_details; }
    // The first of it with its line and column, as one text; empty when there was nothing.
    QString fault() const;

private:
    void handleMessage(const QString &file, const fileFault &message);

    validationResult m_details;
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
