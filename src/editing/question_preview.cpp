#include "editing/question_preview.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

struct TypePicture {
    QLatin1StringView type;
    int number;
};

constexpr TypePicture typePictures[] = {
    {"Pulldown List"_L1, 103},   {"Checkboxes"_L1, 104}, {"Yes/No"_L1, 105},  {"Currency"_L1, 106},
    {"Date/Time"_L1, 107},       {"Notes"_L1, 108},      {"Numeric"_L1, 109}, {"Signature"_L1, 110},
    {"Scanned Barcode"_L1, 111}, {"Text"_L1, 112},
};

int PictureOfType(const QString &type)
{
    const auto *found = std::ranges::find_if(
        typePictures, [&](const TypePicture &row) { return type == row.type; });
    return found == std::end(typePictures) ? 0 : found->number;
}

QString Shortened(const QString &question)
{
    return question.size() <= 23 ? question : question.first(20) + "..."_L1;
}

QuestionPreview::ItemBox ItemBoxOf(const clsDataSource &source, int questionId)
{
    constexpr int shownItems = 6;
    QuestionPreview::ItemBox box{{}, 2295};
    for (const ItemRow &row : source.Items().Rows()) {
        if (row.Id != questionId)
            continue;
        if (box.items.size() == shownItems) {
            box.width = 2150;
            break;
        }
        box.items += row.Item;
    }
    return box;
}

} // namespace

std::optional<QuestionPreview> PreviewOf(const clsDataSource &source)
{
    const Table<QuestionRow> &questions = source.Questions();
    if (questions.AtEnd() || questions.AtStart())
        return {};

    const QuestionRow &current = questions.Current();
    QuestionPreview preview{
        .position = u"%1 of %2"_s.arg(current.Order).arg(source.QuestionCount()),
        .pictureNumber = PictureOfType(current.Type),
    };
    if (preview.pictureNumber == 0)
        return preview;

    preview.title = current.Title;
    preview.question = Shortened(current.Question);
    if (current.Type == "Checkboxes"_L1)
        preview.itemBox = ItemBoxOf(source, current.Id);
    return preview;
}

} // namespace vellumo
