// The line in which a template is typed: behind a "{" the names of fields are offered.
#pragma once

#include <QLineEdit>

class QCompleter;

class templateLine : public QLineEdit
{
    Q_OBJECT
public:
    explicit templateLine(QWidget *parent);

private:
    // The begin of the name that the cursor stands in; -1 outside of braces.
    int nameBegin() const;
    void offer();
    void take(const QString &name);

    QCompleter *m_names;
};
