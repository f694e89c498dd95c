// A spin box of dialogs for whole numbers, that reads and refuses as the cells of the trees do.
#pragma once

#include "tree/numberBox.h"
#include "tree/refusal.h"
#include "util/typed.h"

class countBox : public numberBox<QSpinBox>
{
public:
    countBox(QWidget *parent, int minimum, int maximum, int initial)
        : numberBox(parent, minimum, maximum, numbers::plain)
    {
        setFrame(true);
        show(QString::number(initial));
        selectAll();
        connect(lineEdit(), &QLineEdit::textEdited, this,
                [this] { refusal::mark(this, {}, lineEdit()); });
    }

    // The number; nothing, with the box marked, when the text is none.
    std::optional<int> count()
    {
        const auto [text, fault] =
            typed::readNumber(typedText(), {double(minimum()), double(maximum())});
        refusal::mark(this, fault, lineEdit());
        if (!fault.isEmpty())
            setFocus();
        return fault.isEmpty() ? std::optional(text.toInt()) : std::nullopt;
    }
};
