// A spin box that leaves what is typed as it stands, in whatever way of writing: it is read when
// the cell takes it, and refused there when it is no number of the cell.
#pragma once

#include "util/numbers.h"

#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

template <class Box>
class numberBox : public Box
{
    using number = decltype(std::declval<Box>().value());

public:
    using writer = QString (*)(double);

    // written: the form of a number that the arrows give.
    numberBox(QWidget *parent, number minimum, number maximum, writer written)
        : Box(parent)
        , m_written(written)
    {
        this->setRange(minimum, maximum);
        this->setFrame(false);
        // Else the cell shows through the arrows.
        this->setAutoFillBackground(true);
        this->setAlignment(Qt::AlignRight);
        QObject::connect(this->lineEdit(), &QLineEdit::textChanged, this,
                         [this](const QString &text) { m_text = text; });
    }

    void show(const QString &text)
    {
        m_text = text;
        this->lineEdit()->setText(text);
    }
    QString typedText() const { return m_text; }

    void stepBy(int steps) override
    {
        const double before = numbers::finite(m_text).value_or(double(this->value()));
        const double after = before + steps * double(this->singleStep());
        show(m_written(std::clamp(after, double(this->minimum()), double(this->maximum()))));
        this->selectAll();
    }

protected:
    QAbstractSpinBox::StepEnabled stepEnabled() const override
    {
        return QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    }
    QValidator::State validate(QString &, int &) const override { return QValidator::Acceptable; }
    QString textFromValue(number value) const override
    {
        return m_text.isNull() ? Box::textFromValue(value) : m_text;
    }
    number valueFromText(const QString &text) const override
    {
        const double low = double(this->minimum());
        const double high = double(this->maximum());
        return number(std::clamp(numbers::finite(text).value_or(low), low, high));
    }

private:
    writer m_written;
    QString m_text;
};
