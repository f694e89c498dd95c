// What this program is: logo, name, version, what it is built with.
#pragma once

#include <QDialog>
#include <QPixmap>

class aboutDialog : public QDialog
{
    Q_OBJECT
public:
    aboutDialog(const QPixmap &logo, QWidget *parent);
};
