#include "util/prompts.h"

#include "util/text.h"

#include <QRegularExpression>

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

// With their points: "Xml File (*.xml)" has ".xml".
QStringList suffixesOf(const QString &filter)
{
    static const QRegularExpression pattern(QStringLiteral("\\*(\\.\\w+)"));
    QStringList suffixes;
    for (auto found = pattern.globalMatch(filter); found.hasNext();)
        suffixes.append(found.next().captured(1));
    return suffixes;
}

// That one of them in which the name ends; empty when it has none.
QString endOf(const QString &name, const QStringList &suffixes)
{
    for (const QString &suffix : suffixes)
        if (name.endsWith(suffix, Qt::CaseInsensitive))
            return suffix;
    return {};
}

} // namespace

void prompts::showError(const QString &) {}
void prompts::showInformation(const QString &) {}
prompts::answer prompts::ask(const QString &, bool) { return answer::no; }
void prompts::showWarning(const QString &) {}

std::optional<int> prompts::decide(const QString &, const QStringList &, bool) { return {}; }

std::optional<prompts::password> prompts::inputPassword(const QString &, const QString &)
{
    return {};
}

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
QString prompts::openFolder(const QString &, const QString &) { return {}; }

QString prompts::saveFile(const QString &, const QString &, const QString &) { return {}; }
QString prompts::withSuffix(const QString &name, const QString &chosenFilter,
                            const QString &filters)
{
    const QString chosen = chosenFilter.isEmpty() ? filters : chosenFilter;
    const QStringList wanted = suffixesOf(chosen);
    if (name.isEmpty() || wanted.isEmpty() || !endOf(name, wanted).isEmpty())
        return name;
    const QString other = endOf(name, suffixesOf(filters));
    if (other.isEmpty())
        return name + wanted.first();
    return filters.startsWith(chosen)
               ? name
               : QString(name).replace(name.size() - other.size(), other.size(), wanted.first());
}

void prompts::log(const QString &) {}
void prompts::listError(const QString &) {}
void prompts::showErrors() {}

prompts &userPrompts()
{
    static plainPrompts plain;
    return installed ? *installed : plain;
}

prompts *installPrompts(prompts *replacement) { return std::exchange(installed, replacement); }
