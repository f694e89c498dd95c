#include "tree/IPCtrl.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRegularExpressionValidator>

IPCtrl::IPCtrl(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(1);
    setAutoFillBackground(true);
    auto *validator = new QRegularExpressionValidator(
        QRegularExpression(
            QStringLiteral("^(0|[1-9]|[1-9][0-9]|1[0-9][0-9]|2([0-4][0-9]|5[0-5]))$")),
        this);
    for (int i = 0; i < octets; ++i) {
        if (i > 0)
            layout->addWidget(new QLabel(QStringLiteral("."), this));
        auto *field = new QLineEdit(this);
        field->setObjectName(QStringLiteral("octet%1").arg(i + 1));
        field->setAccessibleName(tr("Part %1 of the address").arg(i + 1));
        field->setValidator(validator);
        field->setFrame(false);
        field->setAlignment(Qt::AlignHCenter);
        field->installEventFilter(this);
        layout->addWidget(field);
        m_fields[size_t(i)] = field;
    }
    setFocusProxy(m_fields.front());
}

QString IPCtrl::text() const
{
    QStringList parts;
    for (const QLineEdit *field : m_fields)
        parts.append(field->text());
    return parts.join(QLatin1Char('.'));
}

void IPCtrl::setText(const QString &address)
{
    const QStringList parts = address.split(QLatin1Char('.'));
    for (int i = 0; i < octets; ++i) {
        QString part = parts.value(i).trimmed();
        int position = 0;
        const bool fits =
            m_fields[size_t(i)]->validator()->validate(part, position) != QValidator::Invalid;
        m_fields[size_t(i)]->setText(fits ? part : QString());
    }
}

bool IPCtrl::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->text() == QLatin1String(".")) {
        for (int i = 0; i + 1 < octets; ++i)
            if (m_fields[size_t(i)] == watched) {
                m_fields[size_t(i) + 1]->setFocus();
                m_fields[size_t(i) + 1]->selectAll();
            }
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
