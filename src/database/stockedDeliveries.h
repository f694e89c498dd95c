// The deliveries that went into a database's stock in its window: they are noted beside their
// orders when the database is saved.
#pragma once

#include "commands/command.h"
#include "orders/deliveredStock.h"

#include <functional>
#include <memory>

class stockedDeliveries
{
public:
    struct entry
    {
        QString orderPath;
        deliveredStock::taken taken;
    };
    using entries = std::vector<std::shared_ptr<const entry>>;

    void add(const entries &deliveries);
    void remove(const entries &deliveries);
    // They did not go into it after all.
    void discard();
    // Whether some could not be noted although the database is saved.
    bool areOverdue() const { return m_overdue; }
    // Those of an order that are not noted yet.
    deliveredStock::takenList pendingOf(const QString &orderPath) const;

    // Those that are not noted yet as a text, from which another run can take them up; empty when
    // there are none.
    QString text() const;
    // False when it holds none.
    bool takeUp(const QString &text);
    // Called with each change of them.
    std::function<void()> changed = [] {};

    // Notes them. False, with the reason in fault, when a file cannot be written; the rest is tried
    // again the next time.
    bool settle(configStruct &config, QString *fault);

private:
    entries m_entries; // and not noted yet
    bool m_overdue = false;
};

// A step that changes the stock, with the deliveries that went into it.
class deliveriesStocked : public command
{
public:
    // stock has been applied; log outlives the step.
    deliveriesStocked(std::unique_ptr<command> stock, stockedDeliveries *log,
                      stockedDeliveries::entries deliveries);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override { m_stock->places(cells); }

private:
    std::unique_ptr<command> m_stock;
    stockedDeliveries *m_log;
    stockedDeliveries::entries m_deliveries;
};
