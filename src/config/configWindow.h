// The configuration: options, persons and targets in trees with undo.
#pragma once

#include "commands/commandStack.h"
#include "data/configStruct.h"
#include "tree/columnTable.h"
#include "window/baseWindow.h"

class QTabWidget;
class myTreeView;

class configWindow : public baseWindow
{
    Q_OBJECT
public:
    configWindow();
    ~configWindow() override;

    // Shows the window; a closed one begins with what the file holds.
    void showNow();

    myModel *options() { return m_options; }
    myModel *persons() { return m_persons; }
    const configStruct &edited() const { return *m_edited; }

public slots:
    void commandSave(bool);
    void commandEdit(bool on);
    void commandUndo(bool);
    void commandRedo(bool);
    void commandAdd(bool);
    void commandDelete(bool);
    void commandDefault(bool);
    void commandClose(bool);
    void clearCommands();

signals:
    // A changed configuration was saved and is in use.
    void configChange();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    // Writes what is edited to the options' records.
    class optionRows : public modelRecords
    {
    public:
        void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;
        void rowInserted(QStandardItem *, int, myItem::myItemStandard *) override {}
        void rowTaken(QStandardItem *, int, myItem::myItemStandard *) override {}
    };

    void load();
    void showOptions();
    myTreeView *addTree(myModel *model, const QString &title, const char *name);
    void updateActions();
    bool isChanged() const { return m_changedBefore || m_stack->undoCount() > 0; }

    std::unique_ptr<configStruct> m_edited;
    std::unique_ptr<commandStack> m_stack;
    bool m_changedBefore = false; // changes that the history no longer holds
    QTabWidget *m_tabs;
    myModel *m_options;
    myModel *m_persons;
    myModel *m_targets;
    std::vector<myTreeView *> m_views;
    optionRows m_optionRows;
    std::unique_ptr<listRows<personStruct>> m_personRows;
    std::unique_ptr<listRows<targetStruct>> m_targetRows;
};
