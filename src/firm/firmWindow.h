// The firm register: manufacturers and suppliers in trees with undo. What is edited is a copy of
// the register's file, which saving puts in use. A firm that gets another name can take the
// materials along: they are renamed when the register is saved, in the windows that show them, else
// in their files.
#pragma once

#include "data/programData.h"
#include "firm/firmTree.h"
#include "firm/firmUsage.h"
#include "window/editWindow.h"

class QTabWidget;
class firmDetailsStruct;
class kiv_mat_firmDetailsStruct;

class firmWindow : public editWindow
{
    Q_OBJECT
public:
    explicit firmWindow(programData &known);

    myModel *model(firmOperations::firmKind kind) { return modelOf(m_pages[kind].view); }
    myTreeView *view(firmOperations::firmKind kind) { return m_pages[kind].view; }
    const kiv_mat_firmStruct &edited() const { return *m_edited; }
    bool isModified() const override;

    // Gives new names to a database whose window is open, as a step of that window. False when it
    // is not: then its file is written here.
    std::function<bool(programData::databaseKind, const firmOperations::renameList &)>
        renameInWindow;
    // The order that is open, if the window is told of one.
    std::function<const kiv_mat_zpStruct &()> openOrder;

    // Adds a firm of that name to the list of its kind, and writes the register unless the window
    // is open with other changes; then it is one of them. False, told to the user, when the
    // register is not to be edited or cannot be written.
    bool addFirm(firmOperations::firmKind kind, const QString &name);

public slots:
    void commandAdd(bool);
    void commandDelete(bool);
    void commandMergeFirms(bool);
    void commandPasteCells(bool);
    void commandHomePage(bool);
    void commandDetails(bool);

signals:
    // Materials of the loaded databases got other manufacturers' or suppliers' names.
    void materialsChanged();

protected:
    QString filePath() const override { return m_path; }
    QString title() const override;
    documentStruct *record() override { return m_edited.get(); }
    std::unique_ptr<command> become(documentStruct &wanted) override;
    bool load() override;
    bool write(const QString &path) override;
    void saved() override;
    void closed() override;
    QString fault() const override { return m_fault; }
    QLatin1String editOption() const override;
    QString closeQuestion() const override;
    void historyMoved() override;
    void updateActions() override;
    myTreeView *currentView() const override;

private:
    struct page
    {
        myTreeView *view = nullptr;
        QLabel *hint = nullptr; // what to do with an empty list
        std::unique_ptr<firmTree::firmRows> rows;
    };

    void addPage(firmOperations::firmKind kind, const QString &title, const char *name);
    std::vector<std::unique_ptr<firmStruct>> &list(firmOperations::firmKind kind);
    page &current();
    QUrl currentHomePage();
    const firmStruct *currentFirm();
    QString detailsPath() const;
    bool readDetails(kiv_mat_firmDetailsStruct *details);
    bool storeDetails(const firmDetailsStruct &before, const firmDetailsStruct &details);
    std::pair<QString, QString> savedAs(firmOperations::firmKind kind,
                                        const firmStruct &firm) const;
    void moveDetailsAlong();
    void clicked(const QModelIndex &cell);
    std::unique_ptr<command> completed(std::unique_ptr<command> change);
    std::unique_ptr<command> withRenames(std::unique_ptr<command> change);
    std::unique_ptr<command> takenBack(std::unique_ptr<command> change, const QString &why);
    QString nameFault(firmOperations::firmKind kind, const QString &name,
                      const firmStruct *itself) const;
    QStringList repeatedNames() const;
    void findFigures();
    void countFigures();
    bool mayWrite(programData::databaseKind kind, const fileState &now) const;
    bool renameInFile(programData::databaseKind kind, const firmOperations::renameList &renames);

    std::unique_ptr<kiv_mat_firmStruct> m_edited;
    std::array<page, firmOperations::firmKindCount> m_pages;
    QTabWidget *m_tabs;
    QLabel *m_counts;
    QString m_path;
    QString m_fault; // why the register cannot be edited
    bool m_pasting = false;
    QString m_takenBack; // why nothing was pasted
    // How much the firms are used, once that is known, with so many of the new names below.
    std::optional<firmOperations::figuresByName> m_figures;
    size_t m_countedRenames = 0;
    firmOperations::orderScan m_orders;
    // What saving is to do with the materials, and what it could not do with a database, which the
    // next saving tries again.
    firmOperations::renameList m_renames;
    // The new names of all firms since the register was saved, which their details get then.
    firmOperations::renameList m_detailNames;
    std::array<firmOperations::renameList, programData::databaseCount> m_unwritten;
};
