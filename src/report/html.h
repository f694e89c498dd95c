// The builder of the program's HTML pages. It writes what it gets: callers escape values, and pass
// attribute values that hold no quotes.
#pragma once

#include <QString>

namespace html {

// The start of a complete page, up to its body, and its end. The base style is followed by the
// page's own rules, CSS.
QString pageStart(const QString &title, const char *styleRules);
QString pageEnd();

class htmlTable
{
public:
    htmlTable() = default;
    virtual ~htmlTable() = default;

    const QString &text() const { return m_text; }

    // Room for so many characters.
    void reserve(int characters) { m_text.reserve(characters); }

    // Ready markup.
    void append(const QString &markup) { m_text += markup; }

    void openTable(const QString &attributes);
    void closeTable();
    void openRow(const QString &attributes = {});
    void closeRow();
    void cell(const QString &attributes, const QString &content);

    // A row with a thin line in the given colour: kind 1 under the labels, kind 2 under the values,
    // kind 3 across a page of three columns. Layouts rely on the unclosed cell of kind 3.
    void separatorRow(int kind, const QString &colour);

    // "label:" and the value in bold; an empty label leaves its cell empty.
    void labelRow(const QString &label, const QString &value);

    // An empty alternative text, or a size that is not positive, is left out.
    void image(const QString &source, const QString &alternativeText, int height, int width);

    // A text in a font; empty face, colour or size are left out.
    void fontText(const QString &face, const QString &colour, const QString &size,
                  const QString &content);

    // The same in bold; below it the note in italics when there is one.
    void boldText(const QString &face, const QString &colour, const QString &size,
                  const QString &content, const QString &note);

    // Nothing when the target is empty.
    void link(const QString &target, const QString &content);

private:
    void openFont(const QString &face, const QString &colour, const QString &size);

    QString m_text;
};

} // namespace html
