// The messages that the program hands to a mail program: a description file with the recipients,
// the subject, the HTML body and the attachments. Everything is done here but saving the order,
// printing its PDF and showing what came of it.
#pragma once

#include "util/progress.h"

#include <QString>
#include <QStringList>

#include <functional>

class configStruct;
class kiv_mat_zpStruct;

namespace mail {

// The folder of the messages, of the template of the order's body, and of what the mail programs
// write.
QString folder();
QString templatePath();

// The addresses in a text such as the link of a person: split at ";" and ",", "mailto:" and what
// follows a "?" dropped. Texts without "@" are no addresses.
QStringList addresses(const QString &configured);

// The addresses of the person who has a role (a PERSON_ key) under that name. When nobody has the
// name, those of the role's only person; none when there are several.
QStringList recipients(const configStruct &config, const QString &role, const QString &name);

struct message
{
    QStringList to;
    QString subject;
    QString body; // path of an HTML file
    QStringList attachments;
};
// The text of the description file: a line for each field, its value in brackets.
QString description(const message &of);

// Removes the description and body files of earlier messages: once before the messages that go out
// together, of which the second must not take the files of the first.
void removeOldMessages();

// Starts the mail program with a description file and does not wait for it: the one for MAPI when
// the configuration has the option EMAIL_MAPI, whatever its value. False when it cannot be started;
// the files stay.
QString programFor(const configStruct &config);
bool start(const QString &descriptionPath, const configStruct &config);

// --- An order ---

// What the files of an order's message are named after: number and date of the order.
QString messageName(const kiv_mat_zpStruct &order);
// Where to print the order's PDF before.
QString pdfPath(const kiv_mat_zpStruct &order);

// Writes the message of an order: to its contractor, with the saved order and its PDF attached. The
// description and body files of earlier messages are removed first. Returns the path of the
// description, empty when a file cannot be written.
QString writeOrder(const kiv_mat_zpStruct &order, const configStruct &config,
                   const QString &orderPath, const QString &pdf);

// --- Databases and BOM lists ---

enum class contents
{
    databases,
    boms
};

// The files that are sent, as far as they exist: the configured databases, or the set of BOM lists
// with the lists in it.
QStringList filesToSend(contents what, const configStruct &config);

// Told of each file that nobody needs once the program ends; a window puts a cmdRemoveFile for it.
using removeLater = std::function<void(const QString &path)>;

// Packs the files into an archive in the run's temporary folder, with the password of the option
// ARCHIVE_PASSWORD when it is set, and writes the message to the administrator. Waits for the
// packing, letting events through and asking progress; what it says goes to the log. Returns the
// path of the description; empty when progress cancelled, or, with the reason in the log, when the
// message could not be made.
QString writeData(contents what, const configStruct &config, const removeLater &later,
                  const progressFunction &progress = {});

} // namespace mail
