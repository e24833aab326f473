#include "ui/questions/delivery_notice.h"

#include "handheld/misfits.h"
#include "validation/delivery_warnings.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QString InWords(const DeliveryWarning &warning)
{
    QString field = warning.place.field;
    field[0] = field[0].toUpper();
    return field + ": "_L1 + warning.reason;
}

} // namespace

DeliveryNotice NoticeOf(const Project &project, int position)
{
    if (position == 0)
        return {};
    QStringList lines;
    for (const auto &warnings : {FindDeliveryWarnings(project), FindMisfits(project)})
        for (const DeliveryWarning &warning : warnings)
            if (warning.place.question == position)
                lines += InWords(warning);
    if (lines.isEmpty())
        return {};
    const QString others = lines.size() > 1 ? u" (and %1 more)"_s.arg(lines.size() - 1) : QString();
    return {lines.front() + others, lines.join(u'\n')};
}

} // namespace vellumo
