#include "data/schemaElements.h"

#include <QFile>
#include <QXmlStreamReader>

schemaElements::schemaElements(const QString &xsdPath)
{
    m_text.isText = true;
    QFile file(xsdPath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray xsd = file.readAll();
    // Types are named before and after their use, so they are made before elements point at them.
    for (QXmlStreamReader reader(xsd); !reader.atEnd(); reader.readNext())
        if (reader.isStartElement() && reader.name() == QLatin1String("complexType"))
            m_types.insert(reader.attributes().value(QLatin1String("name")).toString(), {});
    type *current = nullptr;
    for (QXmlStreamReader reader(xsd); !reader.atEnd(); reader.readNext()) {
        const QByteArray name = reader.attributes().value(QLatin1String("name")).toUtf8();
        if (reader.name() == QLatin1String("complexType")) {
            const auto found = m_types.find(QString::fromUtf8(name));
            current = reader.isStartElement() && found != m_types.end() ? &*found : nullptr;
        } else if (reader.isStartElement() && reader.name() == QLatin1String("attribute")
                   && current) {
            current->attributes.insert(name);
        } else if (reader.isStartElement() && reader.name() == QLatin1String("element")) {
            const auto found =
                m_types.constFind(reader.attributes().value(QLatin1String("type")).toString());
            const type *itsType = found == m_types.constEnd() ? &m_text : &*found;
            (current ? current->children : m_roots).insert(name, itsType);
            m_names.insert(name);
        }
    }
}
