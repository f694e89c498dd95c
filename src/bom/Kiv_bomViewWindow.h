// The lines of one BOM list beside what the databases know of them. What is edited is the file's
// own copy here, which saving writes.
#pragma once

#include "bom/bomTree.h"
#include "bom/materialReplacement.h"
#include "data/materialSearch.h"
#include "window/editWindow.h"

class QLabel;
class QTreeView;
class searchLine;

using materialKtm = QString;

class Kiv_bomViewWindow : public editWindow
{
    Q_OBJECT
public:
    // Reads the file when it is shown; one that cannot be read is told in the errors window, and
    // cannot be edited.
    Kiv_bomViewWindow(programData &known, const QString &path);

    myModel *model() { return modelOf(m_view); }
    myTreeView *view() { return m_view; }
    const kiv_mat_bomStruct &edited() const { return *m_bom; }

    // How many sets of the list are built, for the sums.
    std::function<int()> sets;
    // Opens a list in a window of its own.
    std::function<void(const QString &path)> openList;
    // Replaces a material in all lists.
    std::function<void(const QString &ktm)> replaceEverywhere;

    // The list as it stands here, for a material that is replaced in it; the step that does so,
    // which unlocks the list.
    materialReplacement::document asDocument();
    void replaceMaterial(const materialReplacement::replacement &what);

public slots:
    void commandShowSum(bool);
    void commandDeleteLines(bool);
    void commandMoveUp(bool);
    void commandMoveDown(bool);
    void commandPasteLines(bool);
    void commandFind(bool);
    // Gives the selected line the KTM of a material that is searched for.
    void commandPickMaterial(bool);
    void commandReplaceMaterial(bool);
    // Adds a line of the material below the selected one; a material that no database has is told
    // in the errors window.
    void insertToBomView(const materialKtm &ktm);

protected:
    QString filePath() const override { return m_path; }
    QString title() const override;
    documentStruct *record() override { return m_bom.get(); }
    std::unique_ptr<command> become(documentStruct &wanted) override;
    bool load() override;
    bool write(const QString &path) override;
    QString fault() const override { return m_fault; }
    QString closeQuestion() const override;
    void updateActions() override;
    bool takesFiles() const override;
    void fileDropped(const QString &path) override;

private slots:
    void itemTreeClicked(QPoint position, uint buttons, const QModelIndex &index);
    void selectItem(QTreeView *view, QStandardItem *item);

private:
    int rowForNewLine();
    int rowToPickFor() const;
    void applyFilter();
    void showCounts();

    QString m_path;
    QString m_fault; // why the list cannot be edited
    std::unique_ptr<kiv_mat_bomStruct> m_bom;
    std::unique_ptr<bomTree::lineRows> m_rows;
    // The lines as they are searched, and their index, of the last search.
    std::vector<std::unique_ptr<materialStruct>> m_searched;
    materialSearch m_search;
    myTreeView *m_view;
    searchLine *m_words = nullptr;
    QLabel *m_counts = nullptr;
};
