// A rich text document for HTML of unknown origin: it loads nothing that the HTML refers to.
#pragma once

#include <QTextDocument>
#include <QVariant>

class inertDocument : public QTextDocument
{
public:
    using QTextDocument::QTextDocument;

protected:
    QVariant loadResource(int, const QUrl &) override { return {}; }
};
