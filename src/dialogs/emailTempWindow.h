// The editor of the text that goes along with an order's message; {Do_no} in it stands for the
// order's number.
#pragma once

#include "tree/richtexteditDialog.h"

class emailTempWindow : public richtexteditDialog
{
    Q_OBJECT
public:
    explicit emailTempWindow(QWidget *parent = nullptr);

public slots:
    // Writes a changed text; one that cannot be written is told, and the window stays.
    void accept() override;
};
