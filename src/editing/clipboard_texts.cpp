#include "editing/clipboard_texts.h"

#include "editing/pasted_items.h"
#include "editing/text_table.h"
#include "model/question_types.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

enum Column { Title, Text, Type, Name, Items, columnCount };

constexpr QLatin1StringView captions[columnCount] = {"Title"_L1, "Question"_L1, "Type"_L1,
                                                     "Column Name"_L1, "Items"_L1};

/// Which cell of a row has what; -1 = none has.
using Places = std::array<qsizetype, columnCount>;
constexpr Places placesWithoutHeading = {0, 1, 2, 3, 4};

bool SameName(QStringView text, QLatin1StringView name)
{
    return text.trimmed().compare(name, Qt::CaseInsensitive) == 0;
}

/// A row that names the questions and something else about them is a heading.
std::optional<Places> PlacesOfHeading(const QStringList &cells)
{
    Places places;
    for (size_t column = 0; column < columnCount; ++column) {
        const auto found = std::ranges::find_if(
            cells, [&](const QString &cell) { return SameName(cell, captions[column]); });
        places[column] = found == cells.end() ? -1 : found - cells.begin();
    }
    const auto named = std::ranges::count_if(places, [](qsizetype place) { return place >= 0; });
    return places[Text] >= 0 && named > 1 ? std::optional(places) : std::nullopt;
}

/// The name as the program has it; another one stays as it is.
QString TypeCalled(const QString &name)
{
    for (const QuestionType &type : questionTypes)
        if (SameName(name, type.name))
            return type.name;
    return name;
}

CopiedQuestion QuestionOf(const QStringList &cells, const Places &places)
{
    const auto cell = [&](Column column) { return cells.value(places[column]); };
    CopiedQuestion copied;
    Question &question = copied.question;
    question = {.title = OneLine(cell(Title)),
                .question = cell(Text),
                .type = TypeCalled(OneLine(cell(Type))),
                .columnName = OneLine(cell(Name))};
    if (!HasItems(question.type))
        return copied;
    QStringList lines;
    for (const QString &item : cell(Items).split(u'|'))
        lines += OneLine(item);
    copied.objection = PutItems(question.items, LinesOf(lines.join(u'\n')));
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
    QList<QStringList> rows = {{captions, captions + columnCount}};
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
