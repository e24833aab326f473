#include "exchange/difference_text.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What is said of a question, behind its name.
QString Matter(const Difference &difference)
{
    switch (difference.kind) {
    case DifferenceKind::QuestionRemoved:
        return u"removed"_s;
    case DifferenceKind::QuestionAdded:
        return u"added"_s;
    case DifferenceKind::QuestionMoved:
        return u"moved from %1"_s.arg(difference.before);
    case DifferenceKind::ItemRemoved:
    case DifferenceKind::ItemAdded:
    case DifferenceKind::ItemMoved:
        return u"items"_s;
    case DifferenceKind::FormChanged:
    case DifferenceKind::QuestionChanged:
        break;
    }
    return difference.field;
}

QString Line(QChar sign, int item, const QString &text)
{
    return item > 0 ? u"%1%2. "_s.arg(sign).arg(item) + text : sign + text;
}

} // namespace

QString Heading(const Difference &difference)
{
    if (difference.question == 0)
        return difference.field;
    return u"question %1, %2: %3"_s.arg(QString::number(difference.question), difference.columnName,
                                        Matter(difference));
}

QStringList DifferenceLines(const std::vector<Difference> &differences)
{
    QStringList lines;
    QString last;
    for (const Difference &difference : differences) {
        const QString heading = "@@ "_L1 + Heading(difference) + " @@"_L1;
        if (heading != last)
            lines += heading;
        last = heading;
        if (difference.kind == DifferenceKind::QuestionMoved)
            continue; // the heading has it
        if (difference.itemBefore > 0 || !difference.before.isEmpty())
            lines += Line(u'-', difference.itemBefore, difference.before);
        if (difference.itemAfter > 0 || !difference.after.isEmpty())
            lines += Line(u'+', difference.itemAfter, difference.after);
    }
    return lines;
}

} // namespace vellumo
