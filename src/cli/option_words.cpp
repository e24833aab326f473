#include "cli/option_words.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

const OptionRow *RowOfLetter(QChar letter)
{
    const auto found = std::ranges::find_if(OptionRows(), [letter](const OptionRow &row) {
        return !row.letter.isEmpty() && letter == row.letter.front();
    });
    return found == OptionRows().end() ? nullptr : &*found;
}

bool Asks(const QString &word, const OptionRow &row)
{
    return word == "--"_L1 + row.name ||
           (!row.letter.isEmpty() && LettersOf(word).contains(row.letter));
}

/// Whether the next word belongs to this one.
bool TakesNext(const QString &word)
{
    return std::ranges::any_of(OptionRows(), [&](const OptionRow &row) {
        return !row.valueName.isEmpty() && Asks(word, row) &&
               (word.startsWith("--"_L1) || word.endsWith(row.letter));
    });
}

} // namespace

bool IsOption(const QString &word)
{
    return word.startsWith(u'-') && word.size() > 1;
}

QStringView LettersOf(const QString &word)
{
    if (!IsOption(word) || word.startsWith("--"_L1))
        return {};
    const QStringView letters = QStringView(word).sliced(1);
    for (qsizetype i = 0; i < letters.size(); ++i)
        if (const OptionRow *row = RowOfLetter(letters[i]); !row || !row->valueName.isEmpty())
            return letters.first(row ? i + 1 : i);
    return letters;
}

QList<qsizetype> PlacesOfWords(const QStringList &words)
{
    QList<qsizetype> places;
    for (qsizetype i = 0; i < words.size() && words[i] != "--"_L1; ++i) {
        places += i;
        if (TakesNext(words[i]))
            ++i;
    }
    return places;
}

qsizetype CommandAt(const QStringList &words)
{
    const QList<qsizetype> places = PlacesOfWords(words);
    const auto command =
        std::ranges::find_if(places, [&words](qsizetype place) { return !IsOption(words[place]); });
    return command == places.end() ? -1 : *command;
}

bool AsksFor(const QStringList &words, Option option)
{
    const auto row = std::ranges::find(OptionRows(), option, &OptionRow::option);
    return std::ranges::any_of(PlacesOfWords(words),
                               [&](qsizetype place) { return Asks(words[place], *row); });
}

} // namespace vellumo
