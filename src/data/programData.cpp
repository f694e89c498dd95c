#include "data/programData.h"

#include "data/XmlValidator.h"
#include "data/loaders.h"
#include "data/validFiles.h"
#include "data/vocabulary.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct databaseOptions
{
    QLatin1String file;
    QLatin1String load;
};

constexpr databaseOptions databaseKeys[programData::databaseCount] = {
    {optionKey::fileDbWarehouse, optionKey::loadDbWarehouse},
    {optionKey::fileDbService, optionKey::loadDbService},
    {optionKey::fileDbMechanics, optionKey::loadDbMechanics},
    {optionKey::fileDbAuthor, optionKey::loadDbAuthor}};

void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

} // namespace

bool readChecked(const QString &path, documentStruct *record, QString *error,
                 const progressFunction &progress, bool showMessages)
{
    const QString schema = paths::schema(record->kind().schema);
    if (!validFiles::contains(path, schema)) {
        XmlValidator validator;
        if (!validator.validate(path, schema, showMessages, progress)) {
            if (!validator.details().messages.isEmpty())
                setError(error, validator.fault());
            return false;
        }
        validFiles::remember(path, schema);
    }
    // The schema of all kinds of the tools lets any of them pass.
    const fileKind *kind = fileKinds::ofFile(path);
    if (kind != &record->kind()) {
        setError(error, QCoreApplication::translate("data", "the file is of another kind"));
        return false;
    }
    return loadDocument(path, record, error, progress) == 0;
}

programData &programData::instance()
{
    static programData data;
    return data;
}

void programData::clear()
{
    m_materials.clear();
    m_search.clear();
    m_config = std::make_unique<configStruct>();
    m_firm = std::make_unique<kiv_mat_firmStruct>();
    for (auto &database : m_databases)
        database = std::make_unique<kiv_mat_databaseStruct>();
    m_boms = std::make_unique<kiv_mat_bomsStruct>();
    m_reservations = reservationsFile();
    m_schemasReported = false;
}

void programData::loadConfiguration()
{
    const QString path = paths::config();
    schemaIsThere(fileKinds::config);
    auto config = std::make_unique<configStruct>();
    const bool missing = !QFileInfo::exists(path);
    bool onDisk = !missing && config->load(path);
    if (!onDisk) {
        userPrompts().listError(messages::failed(messages::fileCorrupted(), path,
                                                 QStringLiteral("\u00a0config.xml\u00a0")));
        config = std::make_unique<configStruct>();
        if (missing) {
            config->setDefaults();
            onDisk = config->save(path);
            if (onDisk)
                userPrompts().listError(messages::consequence(messages::createDefaultFile(), path));
        }
    }
    m_config = std::move(config);
    m_config->hidePasswords(path);
    // Later runs are to find the folder for backups; a corrupt configuration stays as it is.
    const bool known = !m_config->options.value(optionKey::pathBackup).isEmpty();
    m_config->backupPath();
    if (!known && onDisk)
        m_config->save(path);
}

bool programData::replaceConfiguration(const QString &path)
{
    auto config = std::make_unique<configStruct>();
    if (!config->load(path))
        return false;
    m_config = std::move(config);
    return true;
}

bool programData::isSwitchedOff(QLatin1String key) const
{
    return m_config->options.findOption(key) && !m_config->isOn(key);
}

// Said once: without schemas every file is refused.
bool programData::schemaIsThere(const fileKind &kind)
{
    const QString schema = paths::schema(kind.schema);
    if (QFileInfo::exists(schema))
        return true;
    if (!std::exchange(m_schemasReported, true))
        userPrompts().listError(
            messages::failed(messages::fileCorrupted(), schema,
                             QCoreApplication::translate(
                                 "data", "without the schemas no file is checked and opened")));
    return false;
}

bool programData::readInto(documentStruct &record, const QString &path,
                           const progressFunction &progress)
{
    if (!QFileInfo::exists(path)) {
        userPrompts().listError(messages::failed(messages::fileCorrupted(), path));
        if (saveXmlNoEvents(path, &record) == 0)
            userPrompts().listError(messages::consequence(messages::createDefaultFile(), path));
        return true;
    }
    if (!schemaIsThere(record.kind()))
        return false;
    QString reason;
    if (readChecked(path, &record, &reason, progress))
        return true;
    userPrompts().listError(messages::failed(messages::fileCorrupted(), path, reason));
    return false;
}

void programData::loadFirm(const progressFunction &progress)
{
    const QString name = m_config->options.value(optionKey::fileFirm);
    auto firm = std::make_unique<kiv_mat_firmStruct>();
    if (!name.isEmpty() && readInto(*firm, paths::data(name), progress))
        m_firm = std::move(firm);
}

void programData::loadDatabase(databaseKind kind, const progressFunction &progress)
{
    const QString name = m_config->options.value(databaseKeys[kind].file);
    readDatabase read{std::make_unique<kiv_mat_databaseStruct>(), {}};
    if (name.isEmpty() || isSwitchedOff(databaseKeys[kind].load))
        return;
    read.state = fileState::of(paths::data(name));
    if (!readInto(*read.database, paths::data(name), progress))
        return;
    // A missing one was made.
    if (read.state.size < 0)
        read.state = fileState::of(paths::data(name));
    putInUse(kind, std::move(read));
}

programData::readDatabase programData::readAgain(databaseKind kind,
                                                 const progressFunction &progress)
{
    const QString path = m_databases[kind]->filePath;
    bool cancelled = false;
    const auto watched = [&](long long done, long long total) {
        cancelled = progress && !progress(done, total);
        return !cancelled;
    };
    readDatabase read{std::make_unique<kiv_mat_databaseStruct>(), fileState::of(path)};
    QString reason;
    if (!readChecked(path, read.database.get(), &reason, watched)) {
        read.database.reset();
        if (!cancelled)
            userPrompts().listError(messages::failed(messages::fileCorrupted(), path, reason));
    }
    return read;
}

void programData::putInUse(databaseKind kind, readDatabase read)
{
    m_files[kind] = read.state;
    const auto before = std::exchange(m_databases[kind], std::move(read.database));
    const bool nothingBehind =
        std::all_of(m_databases.begin() + kind + 1, m_databases.end(),
                    [](const auto &later) { return later->materialCount() == 0; });
    if (before->materialCount() == 0 && nothingBehind) {
        m_materials.add(m_databases[kind].get());
        m_search.add(m_databases[kind].get());
        return;
    }
    // The indexes look at the materials of the one before, or list a later database first.
    m_materials.clear();
    m_search.clear();
    for (const auto &known : m_databases) {
        m_materials.add(known.get());
        m_search.add(known.get());
    }
}

std::vector<const kiv_mat_databaseStruct *> programData::databases() const
{
    std::vector<const kiv_mat_databaseStruct *> all;
    for (const auto &database : m_databases)
        all.push_back(database.get());
    return all;
}

void programData::loadBoms()
{
    const QString name = m_config->options.value(optionKey::fileBoms);
    auto boms = std::make_unique<kiv_mat_bomsStruct>();
    if (!name.isEmpty() && !isSwitchedOff(optionKey::loadBoms)
        && readInto(*boms, paths::data(name), {}))
        putInUse(std::move(boms));
}

std::unique_ptr<kiv_mat_bomsStruct> programData::readBoms()
{
    auto boms = std::make_unique<kiv_mat_bomsStruct>();
    QString reason;
    if (readChecked(m_boms->filePath, boms.get(), &reason))
        return boms;
    userPrompts().listError(messages::failed(messages::fileCorrupted(), m_boms->filePath, reason));
    return nullptr;
}

void programData::putInUse(std::unique_ptr<kiv_mat_bomsStruct> boms)
{
    m_boms = std::move(boms);
    m_fileOfBoms = fileState::of(m_boms->filePath);
    m_reservations = reservationsFile(reservationsFile::beside(m_boms->filePath));
}
