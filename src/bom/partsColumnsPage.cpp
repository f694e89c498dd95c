#include "bom/partsColumnsPage.h"

#include "util/paths.h"
#include "util/text.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSettings>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int previewRows = 12;

const QString mappingGroup = QStringLiteral("bomImport/columns");

QMap<QString, QString> rememberedColumns()
{
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    QMap<QString, QString> all;
    const int count = settings.beginReadArray(mappingGroup);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        all.insert(settings.value(QStringLiteral("captions")).toString(),
                   settings.value(QStringLiteral("fields")).toString());
    }
    settings.endArray();
    return all;
}

void rememberColumns(const QString &captions, const QString &fields)
{
    if (captions.isEmpty())
        return;
    QMap<QString, QString> all = rememberedColumns();
    all.insert(captions, fields);
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    settings.beginWriteArray(mappingGroup, all.size());
    int place = 0;
    for (auto one = all.constBegin(); one != all.constEnd(); ++one) {
        settings.setArrayIndex(place++);
        settings.setValue(QStringLiteral("captions"), one.key());
        settings.setValue(QStringLiteral("fields"), one.value());
    }
    settings.endArray();
}

QComboBox *newBox(const char *name, const QString &accessibleName, QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(accessibleName);
    return box;
}

} // namespace

partsColumnsPage::partsColumnsPage(QWidget *parent)
    : QWidget(parent)
{
    m_form = new QLabel(this);
    m_form->setObjectName(QStringLiteral("form"));
    m_separator = newBox("separator", tr("Separator"), this);
    const std::pair<QString, QString> separators[] = {{tr("comma"), QStringLiteral(",")},
                                                      {tr("semicolon"), QStringLiteral(";")},
                                                      {tr("tab"), QStringLiteral("\t")},
                                                      {tr("bar"), QStringLiteral("|")}};
    for (const auto &[name, sign] : separators)
        m_separator->addItem(name, sign);
    m_sheet = newBox("sheet", tr("Sheet"), this);
    m_preview = new QTableWidget(this);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAccessibleName(tr("First rows of the file"));
    m_preview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_preview->verticalHeader()->setDefaultSectionSize(m_preview->fontMetrics().height() + 6);
    auto *top = new QHBoxLayout;
    top->addWidget(m_form, 1);
    top->addWidget(m_separator);
    top->addWidget(m_sheet);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_preview);
    connect(m_separator, qOverload<int>(&QComboBox::activated), this, [this](int row) {
        partsTableOptions options;
        options.separator = m_separator->itemData(row).toString().at(0);
        emit tableWanted(options);
    });
    connect(m_sheet, qOverload<int>(&QComboBox::activated), this, [this](int row) {
        partsTableOptions options;
        options.sheet = row;
        emit tableWanted(options);
    });
}

void partsColumnsPage::showTable(const partsTable &table)
{
    m_table = table;
    m_columns = partsColumns::guessed(m_table, rememberedColumns());
    const bool isBook = !m_table.sheets.isEmpty();
    m_form->setText(isBook || m_table.encoding.isEmpty()
                        ? tr("%1, %n row(s)", nullptr, m_table.rows.size()).arg(m_table.form)
                        : tr("%1, %2, %n row(s)", nullptr, m_table.rows.size())
                              .arg(m_table.form, m_table.encoding));
    m_separator->setVisible(!m_table.separator.isNull());
    m_separator->setCurrentIndex(m_separator->findData(QString(m_table.separator)));
    m_sheet->setVisible(m_table.sheets.size() > 1);
    m_sheet->clear();
    m_sheet->addItems(m_table.sheets);
    m_sheet->setCurrentIndex(m_table.sheet);

    // The first row chooses what the columns hold.
    const int columns = m_columns.fields.size();
    const int first = std::max(0, m_columns.header);
    const int rows = std::min(previewRows, m_table.rows.size() - first);
    m_preview->clear();
    m_preview->setColumnCount(columns);
    m_preview->setRowCount(rows + 1);
    QStringList headers;
    QStringList numbers{QString()};
    for (int column = 0; column < columns; ++column) {
        const QString caption =
            m_columns.header < 0 ? QString() : m_table.rows[m_columns.header][column];
        headers.append(caption.isEmpty() ? QString::number(column + 1) : caption);
        auto *box = newBox("field", tr("What column %1 holds").arg(headers.last()), m_preview);
        box->setObjectName(QStringLiteral("field%1").arg(column + 1));
        for (int field = 0; field < partsColumns::fieldCount; ++field)
            box->addItem(partsColumns::captionOf(partsColumns::field(field)));
        box->setCurrentIndex(m_columns.fields[column]);
        connect(box, qOverload<int>(&QComboBox::activated), this,
                [this, column](int field) { choose(column, field); });
        m_preview->setCellWidget(0, column, box);
        m_preview->setColumnWidth(column, box->sizeHint().width());
        for (int row = 0; row < rows; ++row) {
            const QString cell = m_table.rows[first + row][column];
            auto *item = new QTableWidgetItem(cell);
            item->setToolTip(text::toolTip(cell));
            m_preview->setItem(row + 1, column, item);
        }
    }
    for (int row = 0; row < rows; ++row)
        numbers.append(QString::number(m_table.lines[first + row]));
    m_preview->setHorizontalHeaderLabels(headers);
    m_preview->setVerticalHeaderLabels(numbers);
}

void partsColumnsPage::choose(int column, int field)
{
    const auto chosen = partsColumns::field(field);
    if (!partsColumns::mayBeSeveral(chosen)) {
        const int before = m_columns.columnOf(chosen);
        if (before >= 0 && before != column) {
            m_columns.fields[before] = partsColumns::none;
            static_cast<QComboBox *>(m_preview->cellWidget(0, before))
                ->setCurrentIndex(partsColumns::none);
        }
    }
    m_columns.fields[column] = chosen;
    rememberColumns(partsColumns::captionSet(m_table, m_columns.header),
                    partsColumns::asText(m_columns.fields));
    emit columnsChanged();
}
