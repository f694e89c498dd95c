// The one door to the user: every message, question and file dialog of the program goes through
// it, and every line for the log and errors windows. The program installs real dialogs and windows,
// the command line and the tests install their own answers.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>

// By itself it shows nothing, answers every question with no and gives no file.
class prompts
{
public:
    enum class answer
    {
        yes,
        no,
        cancel
    };

    prompts() = default;
    prompts(const prompts &) = delete;
    prompts &operator=(const prompts &) = delete;
    virtual ~prompts() = default;

    // Boxes with one button, their text as HTML: a refusal or failure under the title "Error", and
    // a note under "Information".
    virtual void showError(const QString &html);
    virtual void showInformation(const QString &html);
    // A refusal under the title "Warning".
    virtual void showWarning(const QString &html);

    // A question under the title "Asking", with Yes and No, and a button Cancel when wanted.
    // Closing the box answers cancel in any case.
    virtual answer ask(const QString &html, bool withCancel);

    // A question with a button for each answer, which names what it does; the number of the one
    // pressed, nothing when the box was closed otherwise. Return presses the first one, or Cancel
    // where none is harmless.
    virtual std::optional<int> decide(const QString &html, const QStringList &buttons,
                                      bool noneIsHarmless = false);

    // One value in a small dialog; nothing when the user gives none.
    virtual std::optional<QString> inputText(const QString &title, const QString &label,
                                             const QString &initial);
    // A password, which is shown to nobody; keep: whether it may be kept where secrets are.
    struct password
    {
        QString text;
        bool keep = false;
    };
    virtual std::optional<password> inputPassword(const QString &title, const QString &label);
    virtual std::optional<int> inputNumber(const QString &title, const QString &label, int initial,
                                           int minimum, int maximum);
    virtual std::optional<QDate> inputDate(const QString &title, const QDate &initial);
    // The number of one of the texts.
    virtual std::optional<int> choose(const QString &title, const QString &label,
                                      const QStringList &texts, int initial);

    // A file to read or to write; empty when the user gave none. filter as in "Xml File (*.xml)".
    virtual QString openFile(const QString &title, const QString &directory, const QString &filter);
    // A folder to write into; empty when the user gave none.
    virtual QString openFolder(const QString &title, const QString &directory);
    // What is written there replaces a file of that name; the name ends as the filter says.
    virtual QString saveFile(const QString &title, const QString &proposed, const QString &filter);

    // A name to write to as it was typed, with the suffix that is missing: the first one of the
    // filter chosen. filters are all of them, as saveFile() has them. A suffix of another filter
    // stands when it was typed, but not when another filter was chosen after it.
    static QString withSuffix(const QString &name, const QString &chosenFilter,
                              const QString &filters);

    // A line of HTML for the log window, or for the errors window, which showErrors() brings up
    // when lines came since it was brought up last.
    virtual void log(const QString &html);
    virtual void listError(const QString &html);
    virtual void showErrors();
};

// The prompts in use; until some are installed, ones that write boxes and errors as plain text to
// standard error.
prompts &userPrompts();

// Puts other prompts in use. The caller keeps them alive; null goes back to the plain ones.
// Returns those in use before (null for the plain ones).
prompts *installPrompts(prompts *replacement);
