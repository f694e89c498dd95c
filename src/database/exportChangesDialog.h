// Shows what an export has changed against the last one.
#pragma once

#include "database/exportChanges.h"

#include <QDialog>

class exportChangesDialog : public QDialog
{
    Q_OBJECT
public:
    exportChangesDialog(exportChanges changes, const QString &path, QWidget *parent);
};
