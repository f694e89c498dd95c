#include "database/materialPage.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/reservationsFile.h"
#include "database/databaseReport.h"
#include "firm/firmOperations.h"
#include "report/html.h"
#include "util/labels.h"
#include "util/paths.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace materialPage {

namespace {

constexpr const char *styleRules = R"(
body { margin: 6px; }
p.title { font-size: 16px; font-weight: bold; margin: 0 0 2px 0; }
p.heading { font-weight: bold; margin: 10px 0 2px 0; color: #0B4A8A; }
td { vertical-align: top; }
td.caption { color: #52606D; }
)";

const QLatin1String useScheme("use");

QString tr(const char *text) { return QCoreApplication::translate("materialPage", text); }

QString linkHtml(const QUrl &target, const QString &shown)
{
    html::htmlTable link;
    link.link(QString::fromUtf8(target.toEncoded()).toHtmlEscaped(), text::toHtml(shown));
    return link.text().trimmed();
}

QString linkOrText(const QString &stored)
{
    const QUrl target = linkTarget(stored);
    return target.isValid() ? linkHtml(target, stored) : text::toHtml(stored);
}

// The rows of a section, written with its heading once there is one.
class section
{
public:
    explicit section(const QString &heading)
        : m_heading(heading)
    {
    }
    void row(const QString &caption, const QString &content)
    {
        if (content.isEmpty())
            return;
        m_rows.openRow();
        m_rows.cell(QStringLiteral("class=\"caption\" width=\"36%\""), caption.toHtmlEscaped());
        m_rows.cell({}, content);
        m_rows.closeRow();
    }
    void wideRow(const QString &content)
    {
        m_rows.openRow();
        m_rows.cell(QStringLiteral("colspan=\"2\""), content);
        m_rows.closeRow();
    }
    QString text() const
    {
        if (m_rows.text().isEmpty())
            return {};
        html::htmlTable all;
        if (!m_heading.isEmpty())
            all.append(QLatin1String("<p class=\"heading\">") + m_heading.toHtmlEscaped()
                       + QLatin1String("</p>\n"));
        all.openTable(QStringLiteral("width=\"100%\" cellspacing=\"0\" cellpadding=\"2\""));
        all.append(m_rows.text());
        all.closeTable();
        return all.text();
    }

private:
    QString m_heading;
    html::htmlTable m_rows;
};

QString titleHtml(const QString &mark, const QString &title)
{
    return QLatin1String("<p class=\"title\">") + mark + text::toHtml(title)
           + QLatin1String("</p>\n");
}

template <class Record>
void appendFilled(std::vector<field> &list, const Record &record)
{
    for (const textField<Record> &one : Record::fields())
        if (!(record.*one.member).trimmed().isEmpty())
            list.push_back({one.name, one.label(), record.*one.member});
}

QString contentOf(const field &one, const materialStruct &material)
{
    if (one.name == QLatin1String("d_price") || one.name == QLatin1String("d_averagePrice"))
        return priceHtml(one.stored);
    QString shown = text::toHtml(labels::shownIn(one.name, one.stored));
    if (one.name == QLatin1String("d_inWarehouse") || one.name == QLatin1String("d_quantity"))
        shown += QLatin1Char(' ') + text::toHtml(labels::shown(material.d_unit));
    return one.name == QLatin1String("status") ? statusDot(one.stored) + shown : shown;
}

template <class List>
const firmStruct *findFirm(const List &firms, const QString &name)
{
    const auto found = std::find_if(firms.items.begin(), firms.items.end(),
                                    [&name](const auto &firm) { return firm->name == name; });
    return found == firms.items.end() ? nullptr : found->get();
}

// A firm's name leads to its home page.
QString firmHtml(const QString &name, const firmStruct *firm)
{
    const QUrl page = firm ? firmOperations::homePage(firm->homepage) : QUrl();
    const QString shown = page.isValid() ? linkHtml(page, name) : text::toHtml(name);
    return (firm ? statusDot(firm->status) : QString()) + QLatin1String("<b>") + shown
           + QLatin1String("</b>");
}

template <class List, class Firms>
QString sourcesHtml(const QString &heading, const List &sources, const Firms *firms)
{
    section part(heading);
    for (const auto &source : sources.items) {
        QStringList texts{firmHtml(source->name, firms ? findFirm(*firms, source->name) : nullptr),
                          text::toHtml(source->partNo)};
        if (!source->description.isEmpty())
            texts.append(text::toHtml(source->description));
        part.wideRow(texts.join(QLatin1String(" &nbsp;")));
        for (const auto &file : source->files.items)
            if (!file->name.isEmpty())
                part.row(file->type.isEmpty() ? labels::file() : labels::shown(file->type),
                         linkOrText(file->name));
    }
    return part.text();
}

QString useText(const materialUses::use &use, const materialStruct &material)
{
    constexpr int most = 120;
    const QString unit = use.inOrder ? use.unit : material.d_unit;
    const QString detail = use.detail.simplified();
    QStringList texts{use.quantity + QLatin1Char(' ') + labels::shown(unit)};
    texts.append(detail.size() <= most ? detail
                                       : text::firstUnits(detail, most - 1) + QChar(0x2026));
    texts.removeAll(QString());
    return text::toHtml(texts.join(QLatin1String(", ")).trimmed());
}

QString usesHtml(const materialStruct &material, const knownUses &known)
{
    const auto write = [&](const QString &heading, bool inOrders) {
        section part(heading);
        for (size_t i = 0; i < known.uses.size(); ++i) {
            const materialUses::use &use = known.uses[i];
            if (use.inOrder != inOrders)
                continue;
            const QString file = use.inOrder && use.path == known.openOrder
                                     ? tr("Open order")
                                     : QFileInfo(use.path).completeBaseName();
            QUrl link;
            link.setScheme(useScheme);
            link.setPath(QString::number(i));
            part.wideRow(linkHtml(link, tr("%1, line %2").arg(file).arg(use.line + 1))
                         + QLatin1String(": ") + useText(use, material));
        }
        return part.text();
    };
    QString all = write(tr("In BOM lists"), false) + write(tr("In orders"), true);
    if (all.isEmpty() && known.isComplete)
        all = QLatin1String("<p><span class=\"note\">")
              + tr("In no BOM list and no order").toHtmlEscaped() + QLatin1String("</span></p>\n");
    if (!known.isComplete)
        all += QLatin1String("<p><span class=\"note\">")
               + tr("BOM lists and orders are still being read").toHtmlEscaped()
               + QLatin1String("</span></p>\n");
    for (const QString &fault : known.faults)
        all += QLatin1String("<p><span class=\"note\">")
               + text::toHtml(tr("Not read: %1").arg(fault)) + QLatin1String("</span></p>\n");
    return all;
}

// Nothing where nothing is reserved.
QString reservedHtml(const materialStruct &material, const kiv_mat_reservationsStruct &reservations)
{
    section part(tr("Reserved for boards"));
    decimal sum;
    const QString unit = QLatin1Char(' ') + text::toHtml(labels::shown(material.d_unit));
    for (const reservedPart &one : reservedParts(reservations, material.d_ktm)) {
        sum += one.quantity;
        part.row(captionOf(*one.board),
                 one.quantity.text() + unit + QLatin1String(", ")
                     + text::toHtml(one.board->date.section(QLatin1Char(' '), 0, 0)));
    }
    if (const auto stock = decimal::read(material.d_inWarehouse); stock && sum > decimal())
        part.row(tr("Left in stock"), (*stock - sum).text() + unit);
    return part.text();
}

const QLatin1String historyScheme("kivzp-history");

QString historyHtml(const QString &editor)
{
    const QString now =
        editor.isEmpty() ? QString()
                         : QStringLiteral("<p><b>%1</b></p>\n")
                               .arg(tr("%1 edits this material now").arg(editor).toHtmlEscaped());
    return now
           + QStringLiteral("<p><a href=\"%1:\">%2</a></p>\n")
                 .arg(historyScheme, tr("Who changed what, and when").toHtmlEscaped());
}

QString materialHtml(const subject &of, const knownUses &uses)
{
    const materialStruct &material = *of.material;
    const QString name = material.d_name.isEmpty() ? material.d_ktm : material.d_name;
    QString all = titleHtml(statusDot(material.information.status), name);

    // Headed by the field that each begins with.
    struct begin
    {
        const char *field;
        QString heading;
    };
    const auto known = [](const char *text) {
        return QCoreApplication::translate("materialTree", text);
    };
    const begin begins[] = {{"d_ktm", {}},
                            {"d_value", known("Parameters")},
                            {"d_price", known("Price and stock")},
                            {"d_libraryRef", known("CAD library")},
                            {"d_quantity", known("Price and stock")},
                            {"status", labels::informations()}};
    std::vector<section> sections;
    for (const begin &one : begins)
        sections.emplace_back(one.heading);
    constexpr size_t stock = 2;
    constexpr size_t library = 3;
    constexpr size_t quantity = 4;
    constexpr size_t information = 5;
    // The names of all fields, filled or not, tell where a section begins.
    QHash<QString, size_t> sectionOf;
    size_t at = 0;
    const auto place = [&](const QString &fieldName) {
        for (size_t i = 0; i < sections.size(); ++i)
            if (fieldName == QLatin1String(begins[i].field))
                at = i;
        sectionOf.insert(fieldName, at == quantity ? stock : at);
    };
    for (const auto &one : materialStruct::fields())
        place(one.name);
    for (const auto &one : informationsStruct::fields())
        place(one.name);
    for (const field &one : filledFields(material))
        if (one.name != QLatin1String("d_name"))
            sections[sectionOf.value(one.name)].row(one.caption, contentOf(one, material));
    if (of.group)
        sections.front().row(labels::group(), text::toHtml(of.group->name));
    if (of.database)
        sections.front().row(labels::file(), text::toHtml(of.database->fileName));

    for (size_t i = 0; i <= stock; ++i)
        all += sections[i].text();
    if (of.reservations)
        all += reservedHtml(material, *of.reservations);
    all += sourcesHtml(labels::manufacturers(), material.manufacturers,
                       of.firms ? &of.firms->manufacturers : nullptr);
    all += sourcesHtml(labels::suppliers(), material.suppliers,
                       of.firms ? &of.firms->suppliers : nullptr);
    all += sections[library].text() + usesHtml(material, uses) + sections[information].text();
    return all;
}

QString groupHtml(const subject &of)
{
    section part({});
    part.row(labels::cpv(), text::toHtml(of.group->cpv));
    part.row(tr("Materials"), QString::number(of.group->items.size()));
    if (of.database)
        part.row(labels::file(), text::toHtml(of.database->fileName));
    return titleHtml({}, of.group->name) + part.text();
}

} // namespace

std::vector<field> filledFields(const materialStruct &material)
{
    std::vector<field> list;
    appendFilled(list, material);
    appendFilled(list, material.information);
    return list;
}

QString page(const subject &of, const knownUses &uses)
{
    QString body;
    if (of.material)
        body = materialHtml(of, uses) + (of.isShared ? historyHtml(of.editor) : QString());
    else if (of.group)
        body = groupHtml(of);
    else
        body = QLatin1String("<p><span class=\"note\">") + tr("Select a material").toHtmlEscaped()
               + QLatin1String("</span></p>\n");
    return html::pageStart(labels::details(), styleRules) + body + html::pageEnd();
}

QUrl linkTarget(const QString &stored)
{
    const QString text = stored.trimmed();
    if (text.isEmpty())
        return {};
    if (QDir::isAbsolutePath(text))
        return QUrl::fromLocalFile(text);
    const QUrl url(text);
    if (url.isValid() && !url.scheme().isEmpty() && !url.host().isEmpty())
        return url;
    if (url.scheme() == QLatin1String("file") || url.scheme() == QLatin1String("mailto"))
        return url;
    const QString beside = paths::data(text);
    return QFileInfo(beside).isFile() ? QUrl::fromLocalFile(beside) : QUrl::fromUserInput(text);
}

bool isHistory(const QUrl &link) { return link.scheme() == historyScheme; }

int useOf(const QUrl &link)
{
    bool isNumber = false;
    const int place = link.path().toInt(&isNumber);
    return link.scheme() == useScheme && isNumber ? place : -1;
}

} // namespace materialPage
