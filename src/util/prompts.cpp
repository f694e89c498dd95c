#include "util/prompts.h"

#include "util/text.h"

#include <cstdio>
#include <utility>

namespace {

class plainPrompts : public prompts
{
public:
    void showError(const QString &html) override { write(html); }
    void showInformation(const QString &html) override { write(html); }
    void listError(const QString &html) override { write(html); }

private:
    static void write(const QString &html)
    {
        std::fprintf(stderr, "%s\n", qUtf8Printable(text::htmlToPlain(html).trimmed()));
    }
};

prompts *installed = nullptr;

} // namespace

void prompts::showError(const QString &) {}
void prompts::showInformation(const QString &) {}
prompts::answer prompts::ask(const QString &, bool) { return answer::no; }
std::optional<int> prompts::decide(const QString &, const QStringList &) { return {}; }

std::optional<QString> prompts::inputText(const QString &, const QString &, const QString &)
{
    return {};
}

std::optional<int> prompts::inputNumber(const QString &, const QString &, int, int, int)
{
    return {};
}

std::optional<QDate> prompts::inputDate(const QString &, const QDate &) { return {}; }

std::optional<int> prompts::choose(const QString &, const QString &, const QStringList &, int)
{
    return {};
}

QString prompts::openFile(const QString &, const QString &, const QString &) { return {}; }
QString prompts::saveFile(const QString &, const QString &, const QString &) { return {}; }
void prompts::log(const QString &) {}
void prompts::listError(const QString &) {}
void prompts::showErrors() {}

prompts &userPrompts()
{
    static plainPrompts plain;
    return installed ? *installed : plain;
}

prompts *installPrompts(prompts *replacement) { return std::exchange(installed, replacement); }
