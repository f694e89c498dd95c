// The prompts of the program with windows: message boxes, file dialogs, the log and errors windows.
#pragma once

#include "util/prompts.h"

class dialogPrompts : public prompts
{
public:
    void showError(const QString &html) override;
    void showInformation(const QString &html) override;
    void showWarning(const QString &html) override;
    answer ask(const QString &html, bool withCancel) override;
    std::optional<int> decide(const QString &html, const QStringList &buttons,
                              bool noneIsHarmless) override;
    std::optional<password> inputPassword(const QString &title, const QString &label) override;
    std::optional<QString> inputText(const QString &title, const QString &label,
                                     const QString &initial) override;
    std::optional<int> inputNumber(const QString &title, const QString &label, int initial,
                                   int minimum, int maximum) override;
    std::optional<QDate> inputDate(const QString &title, const QDate &initial) override;
    std::optional<int> choose(const QString &title, const QString &label, const QStringList &texts,
                              int initial) override;
    QString openFile(const QString &title, const QString &directory,
                     const QString &filter) override;
    QString openFolder(const QString &title, const QString &directory) override;
    QString saveFile(const QString &title, const QString &proposed, const QString &filter) override;
    void log(const QString &html) override;
    void listError(const QString &html) override;
    void showErrors() override;
};
