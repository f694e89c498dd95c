#include "window/keptSearchesDialog.h"

#include "util/foldedText.h"
#include "util/labels.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

#include <set>

keptSearchesDialog::keptSearchesDialog(QWidget *parent)
    : QDialog(parent)
    , m_rows(new QTableWidget(this))
    , m_fault(new QLabel(this))
{
    setWindowTitle(tr("Kept searches"));
    const std::vector<keptSearch> kept = keptSearches::all();
    m_rows->setObjectName(QStringLiteral("searches"));
    m_rows->setAccessibleName(tr("Kept searches"));
    m_rows->setRowCount(int(kept.size()));
    m_rows->setColumnCount(2);
    m_rows->setHorizontalHeaderLabels({labels::name(), tr("Search")});
    m_rows->verticalHeader()->hide();
    constexpr int nameWidth = 240;
    m_rows->setColumnWidth(0, nameWidth);
    m_rows->horizontalHeader()->setStretchLastSection(true);
    m_rows->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_rows->setSelectionMode(QAbstractItemView::SingleSelection);
    m_rows->setTabKeyNavigation(false);
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        m_rows->setItem(row, 0, new QTableWidgetItem(kept[size_t(row)].name));
        auto *words = new QTableWidgetItem(kept[size_t(row)].words);
        words->setFlags(words->flags() & ~Qt::ItemIsEditable);
        m_rows->setItem(row, 1, words);
    }
    m_rows->setCurrentCell(0, 0);
    m_fault->setObjectName(QStringLiteral("fault"));
    m_fault->setTextFormat(Qt::PlainText);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    const auto add = [&](const QString &text, const char *name) {
        QPushButton *button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        return button;
    };
    connect(add(tr("Rename"), "rename"), &QPushButton::clicked, this, [this] {
        if (QTableWidgetItem *name = m_rows->item(m_rows->currentRow(), 0)) {
            m_rows->setFocus();
            m_rows->setCurrentItem(name);
            m_rows->editItem(name);
        }
    });
    connect(add(labels::deleteCaption(), "deleteSearch"), &QPushButton::clicked, this,
            &keptSearchesDialog::deleteRow);
    auto *key = new QShortcut(QKeySequence::Delete, m_rows);
    key->setContext(Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, &keptSearchesDialog::deleteRow);
    connect(buttons, &QDialogButtonBox::accepted, this, &keptSearchesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_rows);
    layout->addWidget(m_fault);
    layout->addWidget(buttons);
    constexpr QSize usualSize(640, 360);
    resize(usualSize);
}

void keptSearchesDialog::deleteRow()
{
    m_rows->removeRow(m_rows->currentRow());
    m_rows->setFocus();
}

std::vector<keptSearch> keptSearchesDialog::searches() const
{
    std::vector<keptSearch> result;
    for (int row = 0; row < m_rows->rowCount(); ++row)
        result.push_back({m_rows->item(row, 0)->text().simplified(), m_rows->item(row, 1)->text()});
    return result;
}

void keptSearchesDialog::accept()
{
    std::set<std::string> names;
    int row = 0;
    for (const keptSearch &search : searches()) {
        const bool isNew = names.insert(text::folded(search.name)).second;
        if (search.name.isEmpty() || !isNew) {
            m_fault->setText(search.name.isEmpty()
                                 ? tr("A search needs a name")
                                 : tr("There is another search %1").arg(search.name));
            m_rows->setFocus();
            m_rows->setCurrentCell(row, 0);
            return;
        }
        ++row;
    }
    QDialog::accept();
}
