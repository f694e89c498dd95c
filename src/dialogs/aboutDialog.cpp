#include "dialogs/aboutDialog.h"

#include "util/dates.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

aboutDialog::aboutDialog(const QPixmap &logo, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowTitle(tr("About"));
    auto *picture = new QLabel(this);
    picture->setPixmap(logo);
    picture->setAlignment(Qt::AlignTop);
    auto *text =
        new QLabel(QStringLiteral("<h2>KivZP %1</h2><p>%2</p><p>%3<br>Qt %4</p>")
                       .arg(QCoreApplication::applicationVersion().toHtmlEscaped(),
                            tr("Public-procurement orders of electronic materials"),
                            tr("Built on %1").arg(dates::fromMonthNames(QLatin1String(__DATE__))),
                            QLatin1String(qVersion())),
                   this);
    text->setObjectName(QStringLiteral("aboutText"));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto *top = new QHBoxLayout;
    top->addWidget(picture);
    top->addWidget(text, 1);
    auto *all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addWidget(buttons);
}
