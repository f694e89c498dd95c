// The line in which a template is typed: behind a "{" the names of fields are offered.
#pragma once

#include <QLineEdit>

class completionList;

class templateLine : public QLineEdit
{
    Q_OBJECT
public:
    // keys: the widget that has the keyboard while one types, where it is not the line itself.
    explicit templateLine(QWidget *parent, QWidget *keys = nullptr);

    // While it offers names, one is still being typed.
    bool isOffering() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The begin of the name that the cursor stands in; -1 outside of braces.
    int nameBegin() const;
    void offer();
    void take(int number);
    // Of the list, which is shown; false when it is nothing to the list.
    bool takesKey(int key);

    completionList *m_list;
    QStringList m_names; // in the list
};
