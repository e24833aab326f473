#include "editing/clipboard_texts.h"

#include "editing/pasted_items.h"
#include "editing/question_columns.h"
#include "editing/text_table.h"
#include "model/question_types.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Which cell of a row has what, by column; -1 = none has.
using Places = std::array<qsizetype, questionColumns.size()>;
constexpr Places placesWithoutHeading = {0, 1, 2, 3, 4};

qsizetype PlaceOf(QuestionColumn column, const Places &places)
{
    return places[static_cast<size_t>(column)];
}

/// A row that names the questions and something else about them is a heading.
std::optional<Places> PlacesOfHeading(const QStringList &cells)
{
    Places places;
    for (const QuestionColumn column : questionColumns) {
        const auto found = std::ranges::find_if(
            cells, [&](const QString &cell) { return HasName(cell, CaptionOf(column)); });
        places[static_cast<size_t>(column)] = found == cells.end() ? -1 : found - cells.begin();
    }
    const auto named = std::ranges::count_if(places, [](qsizetype place) { return place >= 0; });
    return PlaceOf(QuestionColumn::Text, places) >= 0 && named > 1 ? std::optional(places)
                                                                   : std::nullopt;
}

CopiedQuestion QuestionOf(const QStringList &cells, const Places &places)
{
    using enum QuestionColumn;
    const auto cell = [&](QuestionColumn column) { return cells.value(PlaceOf(column, places)); };
    CopiedQuestion copied;
    Question &question = copied.question;
    question = {.title = OneLine(cell(Title)),
                .question = cell(Text),
                .type = TypeCalled(OneLine(cell(Type))),
                .columnName = OneLine(cell(ColumnName))};
    if (!HasItems(question.type))
        return copied;
    QStringList lines;
    for (const QString &item : cell(Items).split(u'|'))
        lines += OneLine(item);
    copied.itemsObjection = PutItems(question.items, LinesOf(lines.join(u'\n')));
    return copied;
}

} // namespace

QString OneLine(QStringView text)
{
    QString line = text.toString();
    line.replace("\r\n"_L1, "\n"_L1);
    constexpr QChar breaks[] = {u'\n', u'\r', u'\v', u'\f', u'\u2028', u'\u2029'};
    for (const QChar other : breaks)
        line.replace(other, u'\n');
    if (line.endsWith(u'\n'))
        line.chop(1);
    return line.replace(u'\n', u' ').replace(u'\t', u' ');
}

QStringList LinesOf(QStringView text)
{
    QStringList lines;
    QString unified = text.toString();
    unified.replace(u'\r', u'\n').replace(u'\u2028', u'\n').replace(u'\u2029', u'\n');
    for (QStringView line : QStringView(unified).split(u'\n')) {
        while (line.startsWith(u' ') || line.startsWith(u'\t'))
            line = line.sliced(1);
        while (line.endsWith(u' ') || line.endsWith(u'\t'))
            line.chop(1);
        if (!line.isEmpty())
            lines += OneLine(line);
    }
    return lines;
}

QString WriteQuestionTable(const QList<Question> &questions)
{
    QList<QStringList> rows = {{}};
    for (const QuestionColumn column : questionColumns)
        rows.first() += CaptionOf(column);
    for (const Question &question : questions)
        rows.append({question.title, question.question, question.type, question.columnName,
                     question.items.join(u'|')});
    return WriteTable(rows);
}

QList<CopiedQuestion> ReadQuestionTable(QStringView text)
{
    const QList<QStringList> rows = ReadTable(text);
    const auto isBlank = [](const QString &cell) { return QStringView(cell).trimmed().isEmpty(); };
    QList<CopiedQuestion> questions;
    std::optional<Places> places;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (std::ranges::all_of(rows[row], isBlank))
            continue;
        if (!places) {
            places = PlacesOfHeading(rows[row]);
            if (std::exchange(places, places.value_or(placesWithoutHeading)))
                continue;
        }
        CopiedQuestion copied = QuestionOf(rows[row], *places);
        copied.row = row + 1;
        questions += copied;
    }
    return questions;
}

} // namespace vellumo
