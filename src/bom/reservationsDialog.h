// The boards that stock is reserved for, and those that were built, with their materials.
#pragma once

#include <QDialog>

class QTreeWidget;
class configStruct;
class reservationsFile;

class reservationsDialog : public QDialog
{
    Q_OBJECT
public:
    // The file is written when a reservation is released; both outlive the dialog.
    reservationsDialog(reservationsFile &file, configStruct &config, QWidget *parent);

private:
    void showBoards();
    void updateButtons();
    void releaseSelected();
    void copy();

    reservationsFile &m_file;
    configStruct &m_config;
    QTreeWidget *m_tree;
    class QLabel *m_sum;
    class QPushButton *m_release;
};
