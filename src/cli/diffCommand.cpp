// diff: what two files of one kind differ in.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/documentDiff.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace cli {

namespace {

// As diff tells it: 1 is no fault.
constexpr int equal = 0;
constexpr int different = 1;
constexpr int notCompared = 2;

QJsonObject jsonOf(const documentDifference &row)
{
    constexpr const char *kinds[] = {"added", "removed", "changed", "moved"};
    QJsonObject object{{QStringLiteral("difference"), QLatin1String(kinds[row.kind])},
                       {QStringLiteral("record"), row.record},
                       {QStringLiteral("id"), row.id},
                       {QStringLiteral("number"), row.number},
                       {QStringLiteral("name"), row.name},
                       {QStringLiteral("group"), row.group},
                       {QStringLiteral("field"), row.field},
                       {QStringLiteral("caption"), row.caption}};
    const auto addSide = [&object](const QString &side, const QString &text, int place) {
        if (place > 0)
            object.insert(QLatin1String("place_") + side, place);
        // A move within a list is told by its places.
        if (text != QString::number(place))
            object.insert(side, text);
    };
    if (row.kind == documentDifference::moved) {
        addSide(QStringLiteral("before"), row.before, row.placeBefore);
        addSide(QStringLiteral("after"), row.after, row.placeAfter);
    } else {
        object.insert(QStringLiteral("before"), row.before);
        object.insert(QStringLiteral("after"), row.after);
    }
    return object;
}

int runDiff(const QStringList &arguments)
{
    parser options(diffCommand, QStringLiteral("BEFORE AFTER"), 2, 2);
    const QCommandLineOption json = jsonOption();
    options.addOption(json);
    if (!options.accept(arguments))
        return options.code();
    const QString beforePath = options.positionalArguments().at(0);
    const QString afterPath = options.positionalArguments().at(1);
    const auto before = readAny(beforePath);
    const auto after = readAny(afterPath);
    if (!before || !after)
        return notCompared;
    const documentDiff diff = compareDocuments(*before, *after);
    if (!diff.comparable) {
        err() << "diff: "
              << QCoreApplication::translate("cli",
                                             "%1 is of the kind %2, but %3 is of the kind %4")
                     .arg(beforePath, before->kind().root, afterPath, after->kind().root)
              << '\n'
              << Qt::flush;
        return notCompared;
    }
    if (options.isSet(json)) {
        QJsonArray rows;
        for (const documentDifference &row : diff.rows)
            rows.append(jsonOf(row));
        printJson({{QStringLiteral("before"), beforePath},
                   {QStringLiteral("after"), afterPath},
                   {QStringLiteral("kind"), before->kind().root},
                   {QStringLiteral("equal"), diff.rows.empty()},
                   {QStringLiteral("differences"), rows}});
    } else {
        for (const documentDifference &row : diff.rows)
            out() << lineOf(row) << '\n';
        out() << Qt::flush;
    }
    return diff.rows.empty() ? equal : different;
}

} // namespace

const subcommand diffCommand{
    "diff",
    QT_TRANSLATE_NOOP("cli", "Lists what two files of one kind differ in. Exit code 1 when they "
                             "differ, 2 when they cannot be compared."),
    runDiff};

} // namespace cli
