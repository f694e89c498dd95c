#include "util/prompts.h"

#include "util/text.h"

#include <cstdio>
#include <utility>

namespace {

class plainPrompts : public prompts
{
public:
    void showError(const QString &html) override
    {
        std::fprintf(stderr, "%s\n", qUtf8Printable(text::htmlToPlain(html).trimmed()));
    }
};

prompts *installed = nullptr;

} // namespace

prompts &userPrompts()
{
    static plainPrompts plain;
    return installed ? *installed : plain;
}

prompts *installPrompts(prompts *replacement) { return std::exchange(installed, replacement); }
