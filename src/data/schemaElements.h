// Which elements and attributes a schema allows where: the structure of the files, without the
// forms of their texts.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QSet>
#include <QString>

class schemaElements
{
public:
    struct type
    {
        QMap<QByteArray, const type *> children; // in one order, always
        QSet<QByteArray> attributes;
        bool isText = false; // holds nothing else
    };

    // Empty when the schema cannot be read. Knows named types and choices of elements, which is
    // what the program's schemas are made of.
    explicit schemaElements(const QString &xsdPath);

    // The type of a root element; null when the schema has none.
    const type *root(const QByteArray &element) const { return m_roots.value(element); }
    // Whether any element has that name.
    bool contains(const QByteArray &element) const { return m_names.contains(element); }

private:
    QHash<QString, type> m_types;
    type m_text;
    QMap<QByteArray, const type *> m_roots;
    QSet<QByteArray> m_names;
};
