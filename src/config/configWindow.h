// The configuration: options, persons and targets in trees with undo. What is edited is a copy of
// the configuration's file, which saving puts in use.
#pragma once

#include "config/versionCount.h"
#include "data/configStruct.h"
#include "tree/columnTable.h"
#include "window/editWindow.h"

class QTabWidget;

class configWindow : public editWindow
{
    Q_OBJECT
public:
    explicit configWindow(programData &known);

    myModel *options() { return modelOf(m_views[optionsPage]); }
    myModel *persons() { return modelOf(m_views[personsPage]); }
    const configStruct &edited() const { return *m_edited; }

public slots:
    void commandAdd(bool);
    void commandDelete(bool);
    void commandDefault(bool);

signals:
    // A changed configuration was saved and is in use.
    void configChange();

protected:
    QString filePath() const override;
    QString title() const override { return tr("Configuration"); }
    documentStruct *record() override { return m_edited.get(); }
    std::unique_ptr<command> become(documentStruct &wanted) override;
    bool load() override;
    bool write(const QString &path) override;
    void saved() override;
    QLatin1String editOption() const override;
    QString fault() const override { return m_fault; }
    QString forbidden(QLatin1String option) const override;
    QString closeQuestion() const override { return tr("Save the changed configuration?"); }
    void updateActions() override;
    myTreeView *currentView() const override;

private:
    enum page
    {
        optionsPage,
        personsPage,
        targetsPage,
        pageCount
    };

    // Writes what is edited to the options' records.
    class optionRows : public modelRecords
    {
    public:
        void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;
        void rowInserted(QStandardItem *, int, myItem::myItemStandard *) override {}
        void rowTaken(QStandardItem *, int, myItem::myItemStandard *) override {}
    };

    void showOptions();
    void showVersions(const fileVersions::usage &found);
    void addPage(page at, const QString &title, const char *name);

    std::unique_ptr<configStruct> m_edited;
    QTabWidget *m_tabs;
    std::array<myTreeView *, pageCount> m_views{};
    optionRows m_optionRows;
    std::unique_ptr<listRows<personStruct>> m_personRows;
    std::unique_ptr<listRows<targetStruct>> m_targetRows;
    versionCount m_versions;
    QString m_fault;     // why the configuration cannot be edited
    QStringList m_later; // options that the next start reads
};
