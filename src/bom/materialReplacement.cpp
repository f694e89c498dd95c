#include "bom/materialReplacement.h"

#include "data/programData.h"
#include "order/orderOperations.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace materialReplacement {

namespace {

QString told(const char *text) { return QCoreApplication::translate("materialReplacement", text); }

// A unit as it is compared: files may have it in a user's language, too.
QString unitOf(const QString &stored) { return labels::storedOf(labels::unitOrPieces(stored)); }

bool isOtherUnit(const QString &unit, const materialStruct &material)
{
    return unitOf(unit) != unitOf(material.d_unit);
}

template <class Record>
void replaceAll(std::vector<std::unique_ptr<Record>> &lines, const replacement &what)
{
    for (auto &line : lines)
        if (ktmOf(*line) == what.before)
            line = replaced(*line, what);
}

} // namespace

replacement replacementOf(const QString &before, const QString &after, const ktmIndex &materials,
                          QString *fault)
{
    fault->clear();
    replacement what;
    what.before = before;
    if (const ktmIndex::entry *found = materials.find(before))
        what.old = found->material;
    const ktmIndex::entry *found = materials.find(after);
    if (before.isEmpty())
        *fault = told(QT_TRANSLATE_NOOP("materialReplacement", "no material to replace is given"));
    else if (after.isEmpty())
        *fault = told(QT_TRANSLATE_NOOP("materialReplacement", "no new material is given"));
    else if (before == after)
        *fault = told(QT_TRANSLATE_NOOP("materialReplacement", "both materials are the same"));
    else if (!found)
        *fault = told(QT_TRANSLATE_NOOP("materialReplacement", "no database has the material %1"))
                     .arg(after);
    else
        what.after = found->material;
    return what;
}

QString statusRemark(const replacement &what)
{
    if (!what.after || orderOperations::isOrderable(what.after->information.status))
        return {};
    const QString status = what.after->information.status.trimmed();
    return told(QT_TRANSLATE_NOOP("materialReplacement",
                                  "the new material has no status valid for ordering (%1)"))
        .arg(status.isEmpty() ? told(QT_TRANSLATE_NOOP("materialReplacement", "none"))
                              : labels::shown(status));
}

std::optional<std::vector<document>> readFiles(const QStringList &paths,
                                               const progressFunction &progress)
{
    std::vector<document> documents;
    QSet<QString> taken;
    long long done = 0;
    for (const QString &path : paths) {
        const QFileInfo info(path);
        const QString place = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
        if (progress && !progress(done++, paths.size()))
            return {};
        if (taken.contains(place))
            continue;
        taken.insert(place);
        document &of = documents.emplace_back();
        of.path = path;
        of.state = fileState::of(path);
        const bool isOrder = fileKinds::ofFile(path) == &fileKinds::order;
        if (isOrder)
            of.record = std::make_unique<kiv_mat_zpStruct>();
        else
            of.record = std::make_unique<kiv_mat_bomStruct>();
        if (!readChecked(path, of.record.get(), &of.fault)) {
            if (of.fault.isEmpty())
                of.fault = told(QT_TRANSLATE_NOOP("materialReplacement", "it cannot be read"));
        } else if (of.record->leftOut.count > 0) {
            of.fault = told(QT_TRANSLATE_NOOP("materialReplacement", "saving it would lose %1"))
                           .arg(of.record->leftOut.text());
        } else if (isOrder) {
            of.order = static_cast<const kiv_mat_zpStruct *>(of.record.get());
        } else {
            of.list = static_cast<const kiv_mat_bomStruct *>(of.record.get());
        }
    }
    return documents;
}

QStringList line::remarks(const replacement &what) const
{
    QStringList all;
    if (otherUnit && what.after)
        all.append(told(QT_TRANSLATE_NOOP("materialReplacement",
                                          "the unit changes from %1 to %2, the quantity stays"))
                       .arg(labels::shown(labels::unitOrPieces(unit)),
                            labels::shown(labels::unitOrPieces(what.after->d_unit))));
    if (ownText)
        all.append(
            told(QT_TRANSLATE_NOOP("materialReplacement", "its own description is replaced, too")));
    return all;
}

QStringList change::remarks() const
{
    QStringList all;
    if (standsTwice)
        all.append(told(QT_TRANSLATE_NOOP("materialReplacement",
                                          "the new material stands in several lines then")));
    if (!refusal.isEmpty())
        all.append(refusal);
    return all;
}

change changeOf(const document &in, const replacement &what)
{
    change made;
    int already = 0;
    const auto look = [&](const auto &items, const auto &add) {
        int number = 0;
        for (const auto &item : items) {
            if (ktmOf(*item) == what.before)
                add(*item, made.lines.emplace_back(line{number, {}, {}, {}}));
            already += what.after && ktmOf(*item) == what.after->d_ktm ? 1 : 0;
            ++number;
        }
    };
    if (in.list)
        look(in.list->materials, [&what](const materialStruct &of, line &added) {
            added.quantity = of.d_quantity;
            added.detail = of.d_designator;
            // The unit of a list's line is the material's.
            added.unit = what.old ? what.old->d_unit : QString();
            added.otherUnit = what.old && what.after && isOtherUnit(added.unit, *what.after);
        });
    if (in.order)
        look(in.order->orderItems.items, [&what](const orderItemStruct &of, line &added) {
            added.quantity = of.quantity;
            added.detail = of.target;
            added.unit = of.unit;
            added.otherUnit = what.after && isOtherUnit(of.unit, *what.after);
            added.ownText = what.old && !of.description.isEmpty()
                            && of.description != what.old->d_description
                            && (!what.after || of.description != what.after->d_description);
        });
    const int after = already + int(made.lines.size());
    made.standsTwice = what.after && !made.lines.empty() && after > 1;
    if (in.order && made.standsTwice && orderOperations::isTakenOnce(what.after->d_ktm))
        made.refusal = told(QT_TRANSLATE_NOOP("materialReplacement",
                                              "an order takes one line of the new material"));
    return made;
}

std::unique_ptr<materialStruct> replaced(const materialStruct &line, const replacement &what)
{
    auto made = std::make_unique<materialStruct>();
    made->d_ktm = what.after->d_ktm;
    made->d_name = what.after->d_name;
    made->d_quantity = line.d_quantity;
    made->d_designator = line.d_designator;
    return made;
}

std::unique_ptr<orderItemStruct> replaced(const orderItemStruct &line, const replacement &what)
{
    // What comes with a material is what a new line of it has.
    auto made = orderOperations::newLine(*what.after, kiv_mat_zpStruct(), line.quantity, {});
    made->index = line.index;
    made->wait = line.wait;
    made->rohsRequired = line.rohsRequired;
    made->target = line.target;
    made->delivery = line.delivery;
    made->invoice = line.invoice;
    made->attentions = line.attentions;
    return made;
}

togetherResult replaceInFiles(const std::vector<document *> &documents, const replacement &what,
                              configStruct &config, const progressFunction &progress,
                              QString *fault)
{
    std::vector<changedDocument> changed;
    for (document *in : documents) {
        if (in->isOpen)
            continue;
        if (in->order)
            replaceAll(static_cast<kiv_mat_zpStruct *>(in->record.get())->orderItems.items, what);
        else
            replaceAll(static_cast<kiv_mat_bomStruct *>(in->record.get())->materials, what);
        changed.push_back({in->path, in->record.get(), in->state});
    }
    return saveTogether(changed, config, progress, fault);
}

} // namespace materialReplacement
