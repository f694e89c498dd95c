#include "order/deliveries.h"

#include "data/kiv_mat_zpStruct.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace deliveries {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("deliveries", text); }

// Why that much cannot have come of the line; empty when it can.
QString faultOf(const delivered &one, const kiv_mat_zpStruct &order)
{
    const auto &lines = order.orderItems.items;
    const QString number = QString::number(one.line + 1);
    if (one.line < 0 || one.line >= int(lines.size()))
        return tr("The order has no line %1").arg(number);
    const orderItemStruct &line = *lines[size_t(one.line)];
    const QString named = number + QLatin1Char(' ') + (line.ktm.isEmpty() ? line.name : line.ktm);
    if (!isOpen(line))
        return tr("Line %1 was delivered already, or has no quantity").arg(named);
    if (one.quantity <= decimal())
        return tr("Line %1: nothing came of it").arg(named);
    if (one.quantity > *decimal::read(line.quantity))
        return tr("Line %1: %2 came, but only %3 were ordered")
            .arg(named, one.quantity.text(), line.quantity);
    return {};
}

} // namespace

QString textOf(const QString &number, const QDate &date)
{
    QStringList parts{number.trimmed(), date.toString(labels::dateFormat())};
    parts.removeAll({});
    return parts.join(QLatin1String(", "));
}

bool isOpen(const orderItemStruct &line)
{
    return line.delivery.trimmed().isEmpty() && line.invoice.trimmed().isEmpty()
           && decimal::read(line.quantity).value_or(decimal()) > decimal();
}

result note(kiv_mat_zpStruct *order, std::vector<delivered> what, const QString &delivery)
{
    result done;
    std::sort(what.begin(), what.end(),
              [](const delivered &a, const delivered &b) { return a.line < b.line; });
    for (size_t i = 0; i < what.size(); ++i) {
        const QString fault = i > 0 && what[i - 1].line == what[i].line
                                  ? tr("Line %1 is named twice").arg(what[i].line + 1)
                                  : faultOf(what[i], *order);
        if (!fault.isEmpty())
            done.faults.append(fault);
    }
    if (!done.faults.isEmpty())
        return done;
    auto &lines = order->orderItems.items;
    // From the end, so that the numbers of the lines before stay.
    for (auto one = what.rbegin(); one != what.rend(); ++one) {
        orderItemStruct &line = *lines[size_t(one->line)];
        const decimal rest = *decimal::read(line.quantity) - one->quantity;
        if (rest > decimal()) {
            auto open = std::make_unique<orderItemStruct>();
            copyFields(*open, line, orderItemStruct::fields());
            open->quantity = rest.text();
            line.quantity = one->quantity.text();
            lines.insert(lines.begin() + one->line + 1, std::move(open));
            ++done.parted;
        } else {
            ++done.whole;
        }
        lines[size_t(one->line)]->delivery = delivery;
    }
    for (size_t i = 0; i < lines.size(); ++i)
        lines[i]->index = QString::number(i + 1);
    return done;
}

std::optional<std::vector<delivered>> read(const QString &text, const kiv_mat_zpStruct &order,
                                           QString *fault)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^(\d{1,6})(?:\s*-\s*(\d{1,6})|\s*=\s*(\S+))?$)"));
    std::vector<delivered> all;
    const auto &lines = order.orderItems.items;
    for (const QString &part : text.split(QLatin1Char(','))) {
        const QRegularExpressionMatch match = form.match(part.trimmed());
        const int first = match.captured(1).toInt();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
        const auto own = decimal::read(match.captured(3));
        if (!match.hasMatch() || last < first || last > int(lines.size()) || first < 1
            || (!match.captured(3).isEmpty() && !own)) {
            *fault = tr("\"%1\" names no lines of the order").arg(part.trimmed());
            return {};
        }
        for (int line = first; line <= last; ++line)
            all.push_back(
                {line - 1,
                 own ? *own
                     : decimal::read(lines[size_t(line - 1)]->quantity).value_or(decimal())});
    }
    return all;
}

} // namespace deliveries
