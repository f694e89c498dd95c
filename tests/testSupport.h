// What the tests share: the list of test classes, a program folder of their own, and prompts that
// record instead of showing.
#pragma once

#include "util/prompts.h"

#include <QStringList>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

// Puts a test class in the list of the executable: KIVZP_TEST(tst_text) at the end of its file.
// NOLINTBEGIN(bugprone-macro-parentheses): a class name takes none
#define KIVZP_TEST(Class)                                                                          \
    static const bool registered_##Class = testSupport::add(#Class, [] { return new Class; });
// NOLINTEND(bugprone-macro-parentheses)

namespace testSupport {

bool add(const char *name, const std::function<QObject *()> &create);

// A program folder with copies of the schemas, in use while it lives.
class programFolder
{
public:
    programFolder();
    ~programFolder();

    QString path(const QString &relative = {}) const;
    // Writes bytes to a file in the folder and returns its path.
    QString write(const QString &relative, const QByteArray &content) const;

private:
    QTemporaryDir m_dir;
};

// In use while it lives.
class recordingPrompts : public prompts
{
public:
    recordingPrompts();
    ~recordingPrompts() override;

    void showError(const QString &html) override;
    void showInformation(const QString &html) override;
    void showWarning(const QString &html) override { showInformation(html); }
    answer ask(const QString &html, bool withCancel) override;
    QString openFile(const QString &, const QString &, const QString &) override { return file; }
    QString saveFile(const QString &, const QString &proposed, const QString &) override;
    void log(const QString &html) override { logged += html; }
    void listError(const QString &html) override { listed += html; }

    // What was shown, as plain text.
    QStringList errors;
    QStringList informations;
    QStringList questions;
    // What went to the log and errors windows, as HTML.
    QString logged;
    QString listed;
    // The last name proposed by a dialog for saving.
    QString proposed;

    // What the user answers.
    std::optional<int> decide(const QString &html, const QStringList &) override;
    std::optional<QString> inputText(const QString &, const QString &, const QString &) override;
    std::optional<int> inputNumber(const QString &, const QString &, int, int, int) override;
    std::optional<QDate> inputDate(const QString &, const QDate &) override;
    std::optional<int> choose(const QString &, const QString &, const QStringList &, int) override;
    QVariant input; // invalid: cancelled
    answer nextAnswer = answer::no;
    QString file;

private:
    prompts *m_before;
};

QByteArray read(const QString &path);
void write(const QString &path, const QByteArray &content);

// Copies a folder with all its files.
void copyFolder(const QString &from, const QString &to);

// A file of the project's source tree.
QString source(const QString &relative);

// The root element's start tag of a file kind: root, xsi:type and schema as the program writes
// them.
QByteArray document(const char *root, const char *type, const char *schema,
                    const QByteArray &content);
// An order with that content.
QByteArray order(const QByteArray &content);

// The folder of real data, or an empty text.
QString realData();

} // namespace testSupport
