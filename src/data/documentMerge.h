// Two later versions of one document brought together: what only one of them changed is taken from
// it, what both changed is for the user to pick. Works on the files' elements, so for every kind.
#pragma once

#include "util/progress.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

// A difference between mine and theirs: one text, or a line that only one of them has.
struct mergeRow
{
    enum changedBy
    {
        me,
        them,
        both, // in different ways, or what it was before is not known
    };
    QString line;  // KTM and name, or what else names it, below what it stands in
    QString field; // its element or attribute; empty for a whole line
    // The texts; of a line all of them. A null one: there was none.
    QString opened;
    QString mine;
    QString theirs;
    changedBy who = both;
    bool picked = false; // both: whether the user said which
    bool takeTheirs = false;
};

// What the user calls a row's field.
QString mergeCaption(const QString &field);

class documentMerge
{
public:
    // The files; opened may be empty when the state that both began with is not known. Lines belong
    // together by KTM, option type or name, of several with one name in their order.
    // progress is told the bytes read.
    documentMerge(const QString &opened, const QString &mine, const QString &theirs,
                  const progressFunction &progress = {});
    ~documentMerge();

    // False when a file cannot be read or is of another kind than mine, or when it was cancelled.
    bool isReadable() const { return m_readable; }

    // In the order of mine, lines that only theirs has behind the one that they follow there.
    std::vector<mergeRow> rows;

    // The file that comes of it, with what the rows say. The lines of an order are numbered anew.
    QByteArray merged() const;

private:
    struct state;
    std::unique_ptr<state> m_state;
    bool m_readable = false;
};
