// What a user searched for: searches kept under a name, and the last ones. They lie in a small file
// of the user's own, which every window and kivzp-cli read anew each time.
#pragma once

#include <QStringList>

#include <optional>
#include <vector>

struct keptSearch
{
    QString name;
    QString words;

    bool operator==(const keptSearch &) const = default;
};

namespace keptSearches {

// By their names.
std::vector<keptSearch> all();
// Puts others in their place. False when the file cannot be written.
bool setAll(const std::vector<keptSearch> &searches);

// The search of that name; capitals and diacritics do not count.
std::optional<keptSearch> find(const QString &name);
// Keeps one, in place of one of the same name. False when the file cannot be written.
bool keep(const keptSearch &search);

// The last ones, the newest first.
QStringList last();
void addLast(const QString &words);
void forgetLast();

// Where they lie.
QString file();

} // namespace keptSearches
