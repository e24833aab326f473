#include "editing/question_columns.h"

#include "model/question_types.h"

using namespace Qt::StringLiterals;

namespace vellumo {

QLatin1StringView CaptionOf(QuestionColumn column)
{
    constexpr std::array captions = {"Title"_L1, "Question"_L1, "Type"_L1, "Column Name"_L1,
                                     "Items"_L1};
    static_assert(captions.size() == questionColumns.size());
    return captions[static_cast<size_t>(column)];
}

bool HasName(QStringView cell, QLatin1StringView name)
{
    return cell.trimmed().compare(name, Qt::CaseInsensitive) == 0;
}

QString TypeCalled(const QString &cell)
{
    for (const QuestionType &type : questionTypes)
        if (HasName(cell, type.name))
            return type.name;
    return cell;
}

} // namespace vellumo
