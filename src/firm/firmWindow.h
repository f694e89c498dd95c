// The firm register: manufacturers and suppliers in trees with undo. What is edited is a copy of
// the register's file, which saving puts in use. A firm that gets another name can take the
// materials along: they are renamed when the register is saved, in the windows that show them, else
// in their files.
#pragma once

#include "data/programData.h"
#include "firm/firmTree.h"
#include "window/editWindow.h"

class QTabWidget;

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

public slots:
    void commandAdd(bool);
    void commandDelete(bool);
    void commandHomePage(bool);

signals:
    // Materials of the loaded databases got other manufacturers' or suppliers' names.
    void materialsChanged();

protected:
    QString filePath() const override { return m_path; }
    QString title() const override;
    bool load() override;
    bool write(const QString &path) override;
    void saved() override;
    void closed() override;
    QString fault() const override { return m_fault; }
    QLatin1String editOption() const override;
    QString closeQuestion() const override;
    void historyMoved() override;
    const documentStruct *editedDocument() override { return m_edited.get(); }
    std::unique_ptr<command> replacing(documentStruct &version) override;
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
    void clicked(const QModelIndex &cell);
    std::unique_ptr<command> withRenames(std::unique_ptr<command> change);
    bool renameInFile(programData::databaseKind kind, const firmOperations::renameList &renames);

    std::unique_ptr<kiv_mat_firmStruct> m_edited;
    std::array<page, firmOperations::firmKindCount> m_pages;
    QTabWidget *m_tabs;
    QLabel *m_counts;
    QString m_path;
    QString m_fault; // why the register cannot be edited
    // What saving is to do with the materials, and what it could not do with a database, which the
    // next saving tries again.
    firmOperations::renameList m_renames;
    std::array<firmOperations::renameList, programData::databaseCount> m_unwritten;
};
