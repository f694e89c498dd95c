// The editor of one material: its fields, manufacturers, suppliers and their files, with undo. It
// works on a copy, which goes to the material's database only after six checks.
#pragma once

#include "database/materialFiles.h"
#include "database/materialTree.h"
#include "firm/firmOperations.h"
#include "tools/KivScp.h"
#include "window/editWindow.h"

class QMenu;

class materialWindow : public editWindow
{
    Q_OBJECT
public:
    // While it is shown no other window takes input, so that the rows it was opened for stay.
    explicit materialWindow(programData &known, QWidget *parent = nullptr);

    // Each shows the window on a copy of a material, and says which signal gives it back: addNew()
    // with the group's row; editExist() with the group's row and the number of the material's row
    // in it; editExist() with the material's own row. The window only carries these rows. cpv is
    // that of the group. False when the material shown before has changes that the user keeps.
    bool openNew(QStandardItem *group, const QString &cpv = {});
    bool openNew(QStandardItem *group, std::unique_ptr<materialStruct> filledIn);
    bool openExisting(QStandardItem *group, int row, const materialStruct &material);
    bool openExisting(QStandardItem *item, const materialStruct &material);

    // The program ends: what passes the checks is given to the database as if it had been set.
    void giveUnfinished();
    // Adds a firm to the register, false when it could not; none when the register is not at hand.
    std::function<bool(firmOperations::firmKind, const QString &name)> addFirm;

    const materialStruct &edited() const { return *m_edited; }
    const materialTree &rows() const { return m_rows; }
    myModel *model() const { return modelOf(m_view); }
    myTreeView *view() { return m_view; }

public slots:
    void commandSet(bool);
    void commandAddManufacture(bool);
    void commandAddSuppler(bool);
    void commandAddFile(bool);
    void commandDeleteFile(bool);
    void commandDeleteFiles(bool);
    void commandDeleteRows(bool);
    void commandOpen(bool);
    void commandDatasheets(bool);
    void commandDeclarations(bool);
    void commandCopyFileToServer(bool);
    void itemTreeClicked(QPoint position, uint buttons, const QModelIndex &index);

signals:
    // A material that passed the checks. The receiver, of which each signal has one, owns it.
    void addNew(QStandardItem *group, materialStruct *material);
    void editExist(QStandardItem *group, int row, materialStruct *material);
    void editExist(QStandardItem *item, materialStruct *material);

protected:
    // The material has no file of its own: it is saved by giving it to its database.
    QString filePath() const override { return {}; }
    QString title() const override;
    bool load() override { return true; }
    void begin() override {}
    bool write(const QString &) override;
    void saved() override;
    QString closeQuestion() const override { return tr("Set the changed material?"); }
    void historyMoved() override;
    void updateActions() override;

private:
    struct origin
    {
        QStandardItem *item = nullptr; // the group's, or the material's own when row is ownRow
        int row = 0;
    };
    enum : int
    {
        newRow = -1,
        ownRow = -2
    };

    void askAboutFirms();
    bool takeBackUnwanted();
    bool open(const origin &from, std::unique_ptr<materialStruct> material);
    // Whether another material of the databases has the KTM.
    bool isTaken(const QString &ktm) const;
    void goTo(const QStandardItem *item);
    QStandardItem *currentRow() const;
    QStandardItem *currentFirm() const;
    QString currentLink() const;
    void addRow(QStandardItem *parent, const myItem::row &items, const QString &what, int column);
    void deleteRows(const QList<QStandardItem *> &firstCells, const QString &what);
    QString chooseFile();
    void addServerFile(materialFiles::linkKind kind);
    std::optional<int> send(const QString &source, const QString &target);
    int run(KivScp::scp &runner, const KivScp::upload &job);

    std::unique_ptr<materialStruct> m_edited = std::make_unique<materialStruct>();
    std::unique_ptr<materialStruct> m_checked; // passed the checks, to be given away
    QString m_openedKtm;                       // of the material that is in the database already
    origin m_origin;
    materialTree m_rows;
    myTreeView *m_view;
    QMenu *m_menu;
    QLabel *m_counts;
    bool m_isUnwanted = false;         // the last step, whose firm the user thought better of
    QHash<QString, QString> m_sources; // by link: the local file it was made from
};
