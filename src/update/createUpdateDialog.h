// What is to be in an update that is made here: parts with their releases, the folder, the key, and
// whether it is put at the address at once.
#pragma once

#include "update/updateMaker.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class configStruct;

class createUpdateDialog : public QDialog
{
    Q_OBJECT
public:
    createUpdateDialog(const configStruct &config, QWidget *parent);

    // What was accepted; without description and progress.
    updateMaker::job job() const;
    bool uploads() const;

private:
    void addParts();
    QWidget *newPath(QLineEdit *line, const QString &title, bool isFolder);
    void examine();

    const configStruct &m_config;
    QTreeWidget *m_parts;
    QLineEdit *m_folder;
    QLineEdit *m_key;
    QCheckBox *m_upload;
    QLabel *m_fault;
    QPushButton *m_go;
};
