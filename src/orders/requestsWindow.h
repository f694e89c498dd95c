// The requests for quotation of an order: which firm got what and when, who answered, and
// reminders for the others.
#pragma once

#include "orders/quotationRequests.h"
#include "window/baseWindow.h"

class QLabel;
class QTreeWidget;
class programData;

class requestsWindow : public baseWindow
{
    Q_OBJECT
public:
    explicit requestsWindow(programData &known);

    // Comes to the front with the requests of the order as its file of offers is now.
    void showFor(const QString &orderPath);
    const QString &orderPath() const { return m_orderPath; }

    // Asks which firms get a request for these lines of the order that is shown, from 0, or for all
    // of them, and sends the requests. What comes of it is told in the status bar.
    void askFirms(const kiv_mat_zpStruct &order, const std::optional<std::vector<int>> &lines = {});

public slots:
    void commandNew(bool);
    void commandRemind(bool);
    void commandSendAgain(bool);
    void commandOpenDocument(bool);
    void commandOpenTable(bool);
    void commandShowFolder(bool);
    void commandCopy(bool);
    void commandReadAgain(bool);
    void commandClose(bool) { close(); }

signals:
    // New requests are to be sent for the order that is shown; its lines are known elsewhere.
    void newWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildWidgets();
    void readAgain();
    void addRow(const requestStruct &of, const kiv_mat_offersStruct &offers);
    void updateActions();
    void tell(const QString &text);
    // Of the selected rows; they last as long as the content that they are in.
    std::vector<const requestStruct *> selected(const kiv_mat_offersStruct &offers) const;
    const requestStruct *current();
    void openKept(const QString &name);
    // The details of firms; false, which is told, when they cannot be read.
    bool readDetails(kiv_mat_firmDetailsStruct *details);
    quotationRequests::means meansWith(const kiv_mat_firmDetailsStruct &details,
                                       const progressFunction &progress);
    void sendKept(quotationRequests::occasion why, const QStringList &numbers);
    void showResult(const quotationRequests::result &of);

    programData &m_known;
    QString m_orderPath;
    offersFile m_offers;
    int m_shownReadings = -1;
    QDate m_shownDay;
    QLabel *m_counts;
    QTreeWidget *m_table;
};
