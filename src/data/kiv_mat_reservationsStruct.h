// What boards take of the stock: what is reserved for boards that are still to be built, and what
// was taken out for those that were. The quantities stand in the file as they were settled, so that
// a list or a database that changed since changes none of them.
#pragma once

#include "data/documentStruct.h"
#include "data/fieldTable.h"

// The quantity of one material, for all sets of the board.
class boardLineStruct : public attributeRecord<boardLineStruct>
{
public:
    static inline const QString element = QStringLiteral("line");
    static const fieldTable<boardLineStruct> &fields();

    QString ktm;
    QString name;
    QString quantity;
    // Of boards that were built: the stock before and after, as the database had it.
    QString before;
    QString after;
};

class boardStruct : public listRecord<boardStruct, boardLineStruct>
{
public:
    static inline const QString element = QStringLiteral("board");
    static const fieldTable<boardStruct> &fields();

    QString id;   // as no other board of the file has it
    QString list; // file of its BOM list; a relative name starts at the folder of this file
    QString sets; // 1 or more
    QString date; // "yyyy.MM.dd hh:mm"
    QString author;
    // Of boards that were built: the database's file, and how many sets had been reserved.
    QString database;
    QString released;

    std::unique_ptr<boardStruct> copy() const;
};

class reservedBoardsStruct : public listRecord<reservedBoardsStruct, boardStruct>
{
public:
    static inline const QString element = QStringLiteral("reserved");
};

class builtBoardsStruct : public listRecord<builtBoardsStruct, boardStruct>
{
public:
    static inline const QString element = QStringLiteral("built");
};

class kiv_mat_reservationsStruct : public documentStruct
{
public:
    kiv_mat_reservationsStruct();
    static const fieldTable<kiv_mat_reservationsStruct> &fields();

    QString update;
    reservedBoardsStruct reserved;
    builtBoardsStruct built;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};
