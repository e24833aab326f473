#include "property/rules_again.h"

#include "property/random_projects.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool HasLineBreak(const QString &text)
{
    return text.count(u'\r') + text.count(u'\n') > 0;
}

/// A message and whether it applies.
struct Case {
    bool applies;
    const char *message;
};

QString First(std::initializer_list<Case> cases)
{
    for (const auto &[applies, message] : cases)
        if (applies)
            return QString::fromLatin1(message);
    return {};
}

QString All(std::initializer_list<Case> cases)
{
    QString messages;
    for (const auto &[applies, message] : cases)
        if (applies)
            messages += QString::fromLatin1(message);
    return messages;
}

QString RandomLong(Random &random, int limit)
{
    QString text;
    for (int length = RandomLength(random, limit); text.size() < length;)
        text += RandomText(random, 9, random.OnceIn(60) ? Letters::Awkward : Letters::Plain);
    text.truncate(limit + 1);
    return random.OnceIn(3) ? text : Trimmed(text);
}

} // namespace

bool OwnsItems(const QString &type)
{
    return type == "Pulldown List"_L1 || type == "Checkboxes"_L1;
}

QString ExpectedAtNext(int step, const Question &entered, const Columns &columns)
{
    const QString &title = entered.title, &column = entered.columnName, &text = entered.question;
    switch (step) {
    case 1:
        return First({{entered.type == u""_s, "Please select an item."}});
    case 2:
        return First(
            {{title.size() >= 21, "Please keep the title length to 20 characters or less."},
             {title.count(u'"') > 0, "Double quotes are not allowed."}});
    case 3:
        return First({{column == u""_s, "Please enter a column name."},
                      {column.size() >= 256,
                       "Please keep the column name length to 255 characters or less."},
                      {column.count(u'"') > 0, "Double quotes are not allowed."},
                      {std::ranges::count(columns, column) > 0,
                       "The column name already exists. Please enter a different name."}});
    default:
        return First(
            {{HasLineBreak(text), "Carriage returns are not allowed in a question."},
             {text == u""_s, "Please enter a question."},
             {text.size() >= 256, "Please keep the question length to 255 characters or less."}});
    }
}

QString ExpectedAtFinish(int step, const Question &entered)
{
    const auto count = entered.items.size();
    if (step == 5)
        return First({{count == 0, "Please enter at least one item"},
                      {entered.type == "Pulldown List"_L1 && count >= 256,
                       "Please keep the list to 255 items or less."},
                      {entered.type == "Checkboxes"_L1 && count >= 33,
                       "Please keep the Check Box to 32 items or less."}});
    const QString atNext = ExpectedAtNext(4, entered, {});
    return atNext == "Please enter a question."_L1 ? atNext.chopped(1) : atNext;
}

QString ExpectedInDialog(const Question &edited, const Columns &others)
{
    const auto count = edited.items.size();
    const bool owns = OwnsItems(edited.type), isBoxes = edited.type == "Checkboxes"_L1;
    return All({
        {edited.title.size() > 20, "Please keep the title length to 20 characters or less.\n"},
        {edited.question.size() == 0, "Please enter a question.\n"},
        {HasLineBreak(edited.question), "Carriage returns are not allowed in a question.\n"},
        {edited.question.size() > 255,
         "Please keep the question length to 255 characters or less.\n"},
        {edited.columnName.size() == 0, "Please enter a column name.\n"},
        {edited.columnName.size() > 255,
         "Please keep the column name length to 255 characters or less.\n"},
        {edited.title.count(u'"') + edited.columnName.count(u'"') > 0,
         "Double quotes are not allowed in Title and Column Name."},
        {std::ranges::count(others, edited.columnName) > 0,
         "The column name already exists. Please enter a different name.\n"},
        {owns && count == 0, "Please enter at least one item."},
        {owns && !isBoxes && count > 255, "Please keep the list to 255 items or less."},
        {isBoxes && count > 32, "Please keep the Check Box to 32 items or less."},
    });
}

Question RandomQuestion(Random &random)
{
    Question question = {.title = RandomLong(random, 20),
                         .question = RandomLong(random, 255),
                         .type = random.OnceIn(20) ? QString() : RandomType(random, Letters::Plain),
                         .columnName = random.OnceIn(2) ? RandomText(random, 1, Letters::Plain)
                                                        : RandomLong(random, 255)};
    for (int i = random.OneOf(std::array{0, 1, 31, 32, 33, 255, 256}); i > 0; --i)
        question.items += QString::number(i);
    return question;
}

} // namespace vellumo
