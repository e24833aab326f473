#include "ui/questions/delivery_notice.h"

#include "handheld/misfits.h"
#include "validation/delivery_warnings.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QString Shortened(const QString &text)
{
    constexpr qsizetype most = 24;
    return text.size() <= most ? text : text.first(most - 3) + "..."_L1;
}

/// Of many items the text tells which one it is.
QString InWords(const DeliveryWarning &warning)
{
    QString place = warning.place.field;
    place[0] = place[0].toUpper();
    if (warning.place.field == "item"_L1 && !warning.text.isEmpty())
        place += u" \"%1\""_s.arg(Shortened(warning.text));
    return place + ": "_L1 + warning.reason;
}

/// The project without the items of other questions: what is told of this one is the same, and a
/// list of hundreds elsewhere takes no time.
Project WithItemsOf(const Project &project, int position)
{
    const int id = project.source.Questions().Rows()[position - 1].Id;
    QList<ItemRow> items;
    for (const QString &item : project.source.ItemsOf(id))
        items.append({id, item});
    Project reduced = project;
    reduced.source.Items().SetRows(items);
    return reduced;
}

} // namespace

DeliveryNotice NoticeOf(const Project &project, int position)
{
    if (position == 0)
        return {};
    const Project reduced = WithItemsOf(project, position);
    QStringList lines;
    for (const auto &warnings : {FindDeliveryWarnings(reduced), FindMisfits(reduced)})
        for (const DeliveryWarning &warning : warnings)
            if (warning.place.question == position)
                lines += InWords(warning);
    if (lines.isEmpty())
        return {};
    const QString others = lines.size() > 1 ? u" (and %1 more)"_s.arg(lines.size() - 1) : QString();
    return {lines.front() + others, lines.join(u'\n')};
}

} // namespace vellumo
