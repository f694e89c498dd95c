// Prints a web view's page into a PDF file.
#pragma once

#include "util/progress.h"

#include <QString>

class QWebView;

// The file to print to for a name chosen in a dialog: ".pdf" is added when the name has none.
QString pdfPath(const QString &chosen);

// Prints the page of the view on A4 landscape, 1200 pixels of the page across the paper, whatever
// the window's size. No row (class "line") of a table with class "lines" is cut between two pages:
// it moves to the next one, under a repetition of the table's captions. title stands at the foot of
// every page beside the page number. progress(done, total) is called for each page; false cancels.
// Needs neither a printer nor a display. False, with an existing file untouched, when the file
// cannot be written or printing was cancelled.
bool printPdf(QWebView *view, const QString &path, const QString &title,
              const progressFunction &progress = {});
