#include "database/databaseReport.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/vocabulary.h"
#include "report/html.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/numbers.h"
#include "util/safeFile.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QUrl>

namespace {

constexpr const char *styleRules = R"(
table.lines { width: 100%; border-collapse: collapse; }
table.lines td { border: 1px solid #9AA5B1; padding: 3px 5px; vertical-align: top;
  word-wrap: break-word; }
table.lines tr.caption td { background: #E4ECF4; font-weight: bold; }
table.lines td.number { text-align: right; }
table.material { width: 100%; border-collapse: collapse; border-top: 1px solid #9AA5B1;
  margin-bottom: 8px; }
table.material td { padding: 1px 6px; vertical-align: top; }
)";

struct statusMark
{
    QLatin1String word;
    const char *colour;
};

constexpr statusMark marks[] = {{statusWord::grey, "#8A949E"},
                                {statusWord::blue, "#1F6FB5"},
                                {statusWord::green, "#2E9E4F"},
                                {statusWord::violet, "#7B3FB0"}};

// A web address as a link; any other file name as text.
QString fileText(const QString &name)
{
    const QString scheme = QUrl(name).scheme().toLower();
    QString shown = text::toHtml(name);
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https")
        && scheme != QLatin1String("ftp"))
        return shown;
    return QLatin1String("<a href=\"") + shown + QLatin1String("\">") + shown
           + QLatin1String("</a>");
}

// Status words of the firm register by name.
using statusByName = QHash<QString, QString>;

template <class List>
statusByName statusesOf(const List &firms)
{
    statusByName result;
    for (const auto &firm : firms.items)
        result.insert(firm->name, firm->status);
    return result;
}

template <class List>
QString sourceText(const List &sources, const statusByName &statuses)
{
    QString result;
    for (const auto &source : sources.items) {
        if (!result.isEmpty())
            result += QLatin1String("<br>");
        result += statusDot(statuses.value(source->name)) + text::toHtml(source->name)
                  + QLatin1Char(' ') + text::toHtml(source->partNo);
        if (!source->description.isEmpty())
            result += QLatin1String(", ") + text::toHtml(source->description);
        for (const auto &file : source->files.items)
            result += QLatin1String("<br>") + fileText(file->name);
    }
    return result;
}

class reportWriter
{
public:
    reportWriter(const kiv_mat_firmStruct *firms, databaseReportKind kind)
        : m_kind(kind)
    {
        if (firms) {
            m_manufacturers = statusesOf(firms->manufacturers);
            m_suppliers = statusesOf(firms->suppliers);
        }
        for (const auto &field : materialStruct::fields())
            m_captions.append(field.label().toHtmlEscaped());
        for (const auto &field : informationsStruct::fields())
            m_captions.append(field.label().toHtmlEscaped());
        m_captions << labels::manufacturers().toHtmlEscaped()
                   << labels::suppliers().toHtmlEscaped();
    }

    QString start(const kiv_mat_databaseStruct &database) const;
    QString group(const d_groupStruct &group);

private:
    void writeRow(html::htmlTable &page, const materialStruct &material);
    void writeAll(html::htmlTable &page, const materialStruct &material) const;

    databaseReportKind m_kind;
    statusByName m_manufacturers;
    statusByName m_suppliers;
    QStringList m_captions; // of the full report, in its order
    int m_ordinal = 0;
};

QString reportWriter::start(const kiv_mat_databaseStruct &database) const
{
    const QString caption =
        m_kind == databaseReportKind::full ? labels::fullReport() : labels::shortReport();
    const QString name = QFileInfo(database.filePath).fileName();
    html::htmlTable page;
    page.append(html::pageStart(caption + QLatin1String(": ") + name, styleRules));
    page.append(QLatin1String("<h1>") + caption.toHtmlEscaped() + QLatin1String("</h1>\n"));
    page.openTable({});
    page.labelRow(labels::file(), text::toHtml(name));
    page.labelRow(labels::date(), text::toHtml(database.update));
    page.labelRow(QCoreApplication::translate("databaseReport", "Groups"),
                  QString::number(database.groups.size()));
    page.labelRow(QCoreApplication::translate("databaseReport", "Materials"),
                  QString::number(database.materialCount()));
    page.closeTable();
    if (m_kind == databaseReportKind::full)
        page.append(QLatin1String("<p>Status firmy:<br>") + statusDot(statusWord::grey)
                    + QLatin1String(" - firma w trybie edycji i oceny<br>")
                    + statusDot(statusWord::blue) + QLatin1String(" - firma nie stosuje RoHS <br>")
                    + statusDot(statusWord::green) + QLatin1String(" - firma stosuje RoHS</p>\n"));
    return page.text();
}

QString reportWriter::group(const d_groupStruct &group)
{
    html::htmlTable page;
    page.append(QLatin1String("<h2>") + text::toHtml(group.name) + QLatin1Char(' ')
                + QLatin1String("<span class=\"note\">") + text::toHtml(group.cpv)
                + QLatin1String("</span></h2>\n"));
    if (m_kind == databaseReportKind::full) {
        for (const auto &material : group.items)
            writeAll(page, *material);
        return page.text();
    }
    page.openTable(QStringLiteral("class=\"lines\""));
    page.append(QStringLiteral("<col style=\"width:4%\">"));
    page.openRow(QStringLiteral("class=\"caption\""));
    for (const QString &caption :
         {labels::number(), labels::ktm(), labels::name(), labels::description(), labels::value(),
          labels::case_(), labels::price(), labels::inWarehouse()})
        page.cell({}, caption.toHtmlEscaped());
    page.closeRow();
    for (const auto &material : group.items)
        writeRow(page, *material);
    page.closeTable();
    return page.text();
}

void reportWriter::writeRow(html::htmlTable &page, const materialStruct &material)
{
    const QString number = QStringLiteral("class=\"number\"");
    page.openRow();
    page.cell(number, QString::number(++m_ordinal));
    page.cell({}, statusDot(material.information.status) + text::toHtml(material.d_ktm));
    for (const QString &content :
         {material.d_name, material.d_description, material.d_value, material.d_case})
        page.cell({}, text::toHtml(content));
    page.cell(number, priceHtml(material.d_price));
    page.cell(number, text::toHtml(material.d_inWarehouse) + QLatin1Char(' ')
                          + text::toHtml(labels::shown(material.d_unit)));
    page.closeRow();
}

void reportWriter::writeAll(html::htmlTable &page, const materialStruct &material) const
{
    page.openTable(QStringLiteral("class=\"material\""));
    int caption = 0;
    const auto row = [&](const QString &content) {
        if (!content.isEmpty())
            page.labelRow(m_captions.at(caption), content);
        ++caption;
    };
    for (const auto &field : materialStruct::fields()) {
        const QString &stored = material.*field.member;
        if (field.member == &materialStruct::d_ktm)
            row(statusDot(material.information.status) + text::toHtml(stored));
        else if (field.member == &materialStruct::d_price
                 || field.member == &materialStruct::d_averagePrice)
            row(priceHtml(stored));
        else
            row(text::toHtml(labels::shownIn(field.name, stored)));
    }
    for (const auto &field : informationsStruct::fields())
        row(text::toHtml(labels::shownIn(field.name, material.information.*field.member)));
    row(sourceText(material.manufacturers, m_manufacturers));
    row(sourceText(material.suppliers, m_suppliers));
    page.closeTable();
}

} // namespace

QString statusDot(const QString &status)
{
    for (const statusMark &mark : marks)
        if (status == mark.word)
            return QLatin1String("<span style=\"color:") + QLatin1String(mark.colour)
                   + QLatin1String("\">&#9679;</span>&nbsp;");
    return {};
}

QString priceHtml(const QString &stored)
{
    return stored.isEmpty()
               ? QString()
               : text::toHtml(numbers::grouped(numbers::price(stored))) + QLatin1String(" [ PLN ]");
}

exportResult writeDatabaseReport(const kiv_mat_databaseStruct &database,
                                 const kiv_mat_firmStruct *firms, databaseReportKind kind,
                                 const QString &path, const progressFunction &progress)
{
    exportResult result;
    safeFile file(path);
    bool good = file.open(QIODevice::WriteOnly);
    const auto write = [&](const QString &markup) {
        const QByteArray bytes = markup.toUtf8();
        good = good && file.write(bytes) == bytes.size();
    };
    reportWriter report(firms, kind);
    write(report.start(database));
    const int total = database.materialCount();
    for (size_t i = 0; good && i < database.groups.size(); ++i) {
        if (progress && !progress(result.materials, total)) {
            result.result = exportResult::cancelled;
            return result;
        }
        write(report.group(*database.groups[i]));
        result.materials += int(database.groups[i]->items.size());
    }
    write(html::pageEnd());
    if (good && file.commit()) {
        result.files.append(path);
        return result;
    }
    result.result = exportResult::failed;
    result.error = messages::because(
        QCoreApplication::translate("databaseReport", "%1 cannot be written").arg(path), path);
    return result;
}

QString databaseReportPath(const QString &databasePath, databaseReportKind kind)
{
    QString base = databasePath;
    if (base.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive))
        base.chop(4);
    return base
           + (kind == databaseReportKind::full ? QLatin1String("_full.html")
                                               : QLatin1String("_short.html"));
}
