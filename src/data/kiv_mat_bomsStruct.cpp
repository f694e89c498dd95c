#include "data/kiv_mat_bomsStruct.h"

#include "util/labels.h"

#include <QDir>
#include <QFileInfo>

const fieldTable<fileGroup> &fileGroup::fields()
{
    static const fieldTable<fileGroup> table{
        {QStringLiteral("name"), &fileGroup::name, labels::name},
    };
    return table;
}

const fieldTable<fileCategory> &fileCategory::fields()
{
    static const fieldTable<fileCategory> table{
        {QStringLiteral("name"), &fileCategory::name, labels::name},
    };
    return table;
}

const fieldTable<kiv_mat_bomsStruct> &kiv_mat_bomsStruct::fields()
{
    static const fieldTable<kiv_mat_bomsStruct> table{
        {QStringLiteral("update"), &kiv_mat_bomsStruct::update},
        {QStringLiteral("server_release"), &kiv_mat_bomsStruct::serverRelease},
    };
    return table;
}

kiv_mat_bomsStruct::kiv_mat_bomsStruct()
    : documentStruct(fileKinds::boms)
{
}

tagHandlerList kiv_mat_bomsStruct::tagHandlers()
{
    static const std::vector<QString> tags = tagsOf(fields(), {fileCategory::element});
    return {&tags, this};
}

int kiv_mat_bomsStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == fileCategory::element)
        readAppended(reader, categories);
    else if (!readField(reader, *this, fields(), 0))
        reader->readNext();
    return 1;
}

int kiv_mat_bomsStruct::writeContent(QXmlStreamWriter *writer) const
{
    writeFields(writer, *this, fields());
    writer->writeComment(QStringLiteral(" "));
    return writeAll(writer, categories);
}

QString pathOf(const fileStruct &entry, const QString &setPath)
{
    const QDir folder = QFileInfo(setPath).absoluteDir();
    return entry.name.isEmpty() ? QString() : QDir::cleanPath(folder.absoluteFilePath(entry.name));
}

QStringList filesOf(const kiv_mat_bomsStruct &boms, const QString &setPath)
{
    QStringList paths;
    for (const auto &category : boms.categories)
        for (const auto &group : category->items)
            for (const auto &entry : group->items)
                paths.append(pathOf(*entry, setPath));
    paths.removeAll({});
    paths.removeDuplicates();
    return paths;
}
