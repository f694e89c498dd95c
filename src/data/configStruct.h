// The configuration: the user's settings as options, the persons who sign orders, and the targets
// that items are bought for.
#pragma once

#include "data/documentStruct.h"
#include "data/sharedRecords.h"

#include <QFont>

// One entry of a list to choose from: the stored word, the text shown beside it, and the picture.
struct comboBoxStruct
{
    QString value;
    QString description;
    QString icon; // resource path
};

class configStruct : public documentStruct
{
public:
    configStruct();

    optionsStruct options;
    personsStruct persons;
    targetsStruct targets;

    // Words and pictures by which the views paint states.
    const std::vector<comboBoxStruct> statuses;
    const std::vector<comboBoxStruct> probabilities;
    const std::vector<comboBoxStruct> goodWhenYes; // TAK green, NIE red
    const std::vector<comboBoxStruct> goodWhenNo;  // TAK red, NIE green
    const std::vector<comboBoxStruct> manufacturerStatuses;
    const std::vector<comboBoxStruct> supplierStatuses;
    // The kinds offered for attached files.
    const QStringList fileTypes;

    // Makes this the configuration of a new installation: every option with its default value, no
    // persons and no targets.
    void setDefaults();

    // Fills the record from a file; true when loadConfig() returned 0.
    bool load(const QString &path);
    // Writes the file; true when all of it was written.
    bool save(const QString &path) const;

    // Takes the file from everybody's eyes when a password stands in it; owner and group keep what
    // they may.
    void hidePasswords(const QString &path) const;

    // Whether an option says yes: TAK or YES in any case. False when it is missing.
    bool isOn(const QString &key) const;

    // The language that a configuration file asks for: "pl", which is also that of a file that asks
    // for none or cannot be read, or "en". Nothing is checked or shown.
    static QString languageIn(const QString &path);

    // The editors' font: FONT_NAME with FONT_SIZE pixels, or Arial with 14.
    QFont font() const;

    // The folder for backups. When PATH_BACKUP is missing or empty, it is set to a folder in the
    // system's temporary one.
    QString backupPath();

    // The folders of orders, as absolute paths: those of ORDERS_FOLDERS, parted by semicolons,
    // which may start at the data folder; "_zp" without the option.
    QStringList orderFolders() const;
    // Where earlier versions go: that folder, a relative one being beside the program, and while it
    // is the temporary one, which others share and the system empties, one of the user's, too.
    QStringList backupFolders();

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
