#include "cli/word_hints.h"

#include "cli/near_miss.h"
#include "cli/option_words.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool LooksLikeAName(const QString &word)
{
    return word.endsWith(".vmp"_L1, Qt::CaseInsensitive) ||
           word.endsWith(".prc"_L1, Qt::CaseInsensitive) || QFileInfo::exists(word);
}

/// The option that a single letter may mean, which other programs have for these two.
QString MeantByLetter(const QString &letter)
{
    for (const QString &name : {u"version"_s, u"help"_s})
        if (name.startsWith(letter, Qt::CaseInsensitive))
            return name;
    return {};
}

} // namespace

QString HintOfNames(const QStringList &words)
{
    for (const QString &word : words) {
        if (word == "--"_L1)
            break;
        if (IsOption(word) && LooksLikeAName(word))
            return u" If '%1' is a name, put '--' before it."_s.arg(word);
    }
    return {};
}

QString HintOfOption(const QString &unknown, const QStringList &names)
{
    const QString meant = unknown.size() == 1 ? MeantByLetter(unknown) : NearMiss(unknown, names);
    return meant.isEmpty() ? QString() : u" Did you mean '--%1'?"_s.arg(meant);
}

QString HintWithoutCommand(const QStringList &words)
{
    if (QString hint = HintOfNames(words); !hint.isEmpty())
        return hint;
    QStringList names = {u"help"_s, u"version"_s};
    for (const OptionRow &row : OptionRows())
        names += row.name;
    for (const qsizetype place : PlacesOfWords(words)) {
        const QString typed = words[place].section(u'=', 0, 0);
        const QString unknown = typed.mid(typed.startsWith("--"_L1) ? 2 : 1);
        if (names.contains(unknown) || !LettersOf(typed).isEmpty())
            continue;
        if (QString hint = HintOfOption(unknown, names); !hint.isEmpty())
            return hint;
    }
    return {};
}

} // namespace vellumo
