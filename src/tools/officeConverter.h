// Converts office documents by LibreOffice, which need not be installed.
#pragma once

#include <QString>

namespace officeConverter {

// The program, or an empty text.
QString program();

struct converted
{
    QString path;  // in the run's scratch folder; empty when there is none
    QString fault; // why, for the user
};

// Converts a document to another format, which is the ending that LibreOffice knows it by. Waits
// for at most a minute, without events.
converted convert(const QString &document, const QString &format);

} // namespace officeConverter
