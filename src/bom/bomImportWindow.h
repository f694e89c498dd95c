// Makes a BOM list of a list of parts: its columns are checked, its lines matched and settled one
// by one, and nothing is written before "Set".
#pragma once

#include "bom/bomImport.h"
#include "window/baseWindow.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QStandardItemModel;
class QTreeView;
class commandStack;
class partsColumnsPage;
class programData;
class stagedLinesFilter;
class stagedLinesModel;

class bomImportWindow : public baseWindow
{
    Q_OBJECT
public:
    // folder: of the set of BOM lists, where the list goes and the decisions lie.
    bomImportWindow(programData &known, QString folder);
    ~bomImportWindow() override;

    // Reads a file and shows it; tells why it cannot.
    bool openList(const QString &path);
    // Whether no list is open.
    bool isEmpty() const;

    // Where the list is proposed to be written; empty for the folder of the set.
    QString listFolder;
    // Writes the list, and returns whether it was; adds it to the set.
    std::function<bool(const QString &path, kiv_mat_bomStruct &bom)> writeList;
    // Opens the material editor with a new material that has these texts and firms.
    std::function<void(const materialStruct &filledIn)> makeMaterial;

public slots:
    void commandOpen(bool);
    void commandSet(bool);
    void commandClose(bool) { close(); }
    void commandUndo(bool);
    void commandRedo(bool);
    void commandTake(bool);
    void commandUnmatch(bool);
    void commandLeaveOut(bool);
    void commandNewMaterial(bool);
    void commandNext(bool);
    void commandReport(bool);
    void commandMatchAgain(bool);
    void commandDecisions(bool);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    class lineChange;

    QWidget *linesPage();
    void readFile(const partsTableOptions &options);
    bool stageAll(bomImport::staged &lines);
    void match();
    // Looks for materials anew, for all lines but those that the user settled, or for those of them
    // that have none.
    void rematch(bool openOnly);
    void showCounts();
    void showCandidates();
    void updateActions();
    // Of the lines' table; -1.
    int currentLine() const;
    void change(int row, bomImport::stagedLine to, const QString &what);
    bool mayGiveUp() const;

    programData &m_known;
    QString m_folder;
    QString m_path;
    partsTable m_table;
    std::vector<bomImport::decision> m_decisions;
    bool m_keepsDecisions = true;
    int m_matchedCount = 0; // of KTMs in the databases then
    std::unique_ptr<commandStack> m_commands;
    partsColumnsPage *m_columns;
    stagedLinesModel *m_lines;
    stagedLinesFilter *m_shown;
    QTreeView *m_view;
    QComboBox *m_states;
    QLineEdit *m_filter;
    QLineEdit *m_words;
    QTreeView *m_found;
    QStandardItemModel *m_materials;
    QLabel *m_counts;
};
