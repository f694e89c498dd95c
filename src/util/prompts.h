// The one door to the user: every message, question and file dialog of the program goes through
// it. The windows install real dialogs, the command line and the tests install their own answers.
#pragma once

#include <QString>

class prompts
{
public:
    prompts() = default;
    prompts(const prompts &) = delete;
    prompts &operator=(const prompts &) = delete;
    virtual ~prompts() = default;

    // A refusal or failure, as HTML, under the title "Error".
    virtual void showError(const QString &html) = 0;
};

// The prompts in use; until some are installed, ones that write plain text to standard error and
// answer every question with no.
prompts &userPrompts();

// Puts other prompts in use. The caller keeps them alive; null goes back to the plain ones.
// Returns those in use before (null for the plain ones).
prompts *installPrompts(prompts *replacement);
