#include "editing/question_preview.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What a preview shows of a type besides title and question.
struct TypePreview {
    TypeId type;
    qsizetype itemsShown = 0; ///< 0 = its items are not on the screen
};

constexpr std::array<TypePreview, typeCount> typePreviews = {{
    {TypeId::Text},
    {TypeId::Numeric},
    {TypeId::PulldownList}, // its list is closed
    {TypeId::YesNo},
    {TypeId::Signature},
    {TypeId::Notes},
    {TypeId::DateTime},
    {TypeId::Currency},
    {TypeId::ScannedBarcode},
    {TypeId::Checkboxes, 6},
}};
static_assert(HasRowPerType(typePreviews));

QString ShortenedQuestion(const QString &question)
{
    return question.size() <= 23 ? question : question.first(20) + "..."_L1;
}

} // namespace

std::optional<QuestionPreview> PreviewOf(const clsDataSource &source)
{
    const Table<QuestionRow> &questions = source.Questions();
    if (questions.AtEnd() || questions.AtStart())
        return {};

    const QuestionRow &current = questions.Current();
    QuestionPreview preview{.position =
                                u"%1 of %2"_s.arg(current.Order).arg(source.QuestionCount())};
    const QuestionType *type = TypeNamed(current.Type);
    if (!type)
        return preview;

    preview.type = type->id;
    preview.title = current.Title;
    preview.question = ShortenedQuestion(current.Question);
    if (const qsizetype shown = RowOf(typePreviews, type->id).itemsShown; shown > 0) {
        const QStringList items = source.ItemsOf(current.Id);
        preview.items = {items.first(std::min(shown, items.size())), items.size() > shown};
    }
    return preview;
}

} // namespace vellumo
