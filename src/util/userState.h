// What the program remembers of a user between runs, beside the configuration.
#pragma once

#include <QString>

class userState
{
public:
    static userState &instance();

    QString lastZp;        // the order opened last; relative to the data folder or absolute
    QString altiumDir;     // the folder of the last export for the CAD tool
    QString runningMarker; // "1" while the program runs; never stored

    // Both read from and written to the per-user settings of the platform, under the names that the
    // application object has. What cannot be read has its default.
    void load();
    void save() const;
    // The store's place when it cannot be written; empty when it can.
    static QString unwritableStore();

private:
    userState() = default;
};
