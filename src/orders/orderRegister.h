// The orders of the configured folders with what happened to them: the index of their lines, and
// the states that stand beside them.
#pragma once

#include "data/kiv_mat_orderStatesStruct.h"
#include "data/orderedBefore.h"
#include "data/sharedFile.h"
#include "orders/orderIndex.h"
#include "orders/orderOffers.h"

#include <map>

class configStruct;

using statesFile = sharedDocument<kiv_mat_orderStatesStruct>;

class orderRegister
{
public:
    // The cache is read when the index is first asked for.
    explicit orderRegister(QString cache = {})
        : m_cache(std::move(cache))
    {
    }

    // The file of states in a folder of orders.
    static QString statesIn(const QString &folder);

    // As orderIndex::update().
    bool update(const QStringList &folders, const progressFunction &progress = {});
    orderIndex &index();
    // Another number when orders or their states are others than before.
    int revision();

    // When and how an order was sent last; null when it was not. Looked up as the files are now.
    const orderStateStruct *sentState(const QString &orderPath);
    orderStage stageOf(const orderIndex::order &order);
    // Whether its lines are on the way: it was sent, or something of it came, and it was not
    // parted.
    bool isOrdered(const orderIndex::order &order);
    // Whether others are in its place, one for each firm.
    bool isParted(const orderIndex::order &order);
    // The firm that was chosen for a material of it, by its KTM or its name; empty when none was.
    QString firmOf(const orderIndex::order &order, const QString &ktmOrName);
    // What the orders say of a material, as of the last update(). What came and is in stock already
    // is not on the way.
    orderedMaterial orderedOf(const QString &ktm, const QString &except = {});
    orderedBefore beforeOf(const QString &ktm, const QString &except = {});
    // Why files of states cannot be read, a line each.
    QStringList faults();

    // The next free number for a new order.
    QString nextNumber();

    // Who sends what, and when.
    struct sending
    {
        QString number; // of the order
        QString by;
        QString to; // addresses, parted by commas
        QDateTime time = QDateTime::currentDateTime();
    };
    // Keeps the order's file as it is now, as a copy in the folder "sent" beside it, and notes that
    // it was sent. False, with nothing noted and the reason in fault, when one of them cannot be
    // written.
    bool noteSent(const QString &orderPath, const sending &of, configStruct &config,
                  QString *fault);
    // It was not sent after all, or was marked by mistake. The copy stays.
    bool takeBackSent(const QString &orderPath, configStruct &config, QString *fault);
    // Notes that these orders, in the same folder, are in the place of that one.
    bool noteParted(const QString &orderPath, const QStringList &files, configStruct &config,
                    QString *fault);
    // The path of the order as it was sent last; empty when it was not, or the copy is gone.
    QString sentCopy(const QString &orderPath);

private:
    struct folderStates
    {
        explicit folderStates(const QString &path)
            : file(path)
        {
        }
        statesFile file;
        int seen = -1;                                   // its readings when byName was made
        QHash<QString, const orderStateStruct *> byName; // of the orders' files
        QHash<QString, QStringList> parts;               // paths, by the file in whose place
        QHash<QString, decimal> stocked;                 // by order, material and delivery
    };
    folderStates &statesOf(const QString &orderPath);
    // The states with what was made of them, as the file is now, or as it was looked at last.
    folderStates &currentStates(const QString &orderPath, bool looks = true);
    void noteOrdered();
    void leaveOutStock(orderedMaterial *of, const QString &ktm);

    QString m_cache;
    std::unique_ptr<orderIndex> m_index;
    std::map<QString, folderStates> m_states; // by folder
    std::vector<bool> m_ordered;              // by place in the index
    int m_orderedAt = -1;                     // the index's revision for which these are
    // By path of the order, where it has any.
    std::map<QString, offersFile> m_offers;
};
