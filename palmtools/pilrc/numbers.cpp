#include "palmtools/pilrc/numbers.h"

#include "palmtools/pilrc/arithmetic.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace palmtools {
namespace {

struct PreviousWord {
    std::string_view name;
    std::int64_t (*value)(const Rectangle &previous);
};

constexpr PreviousWord previousWords[] = {
    {"PREVLEFT", [](const Rectangle &previous) { return previous.x; }},
    {"PREVTOP", [](const Rectangle &previous) { return previous.y; }},
    {"PREVWIDTH", [](const Rectangle &previous) { return previous.w; }},
    {"PREVHEIGHT", [](const Rectangle &previous) { return previous.h; }},
    {"PREVRIGHT", [](const Rectangle &previous) { return previous.x + previous.w; }},
    {"PREVBOTTOM", [](const Rectangle &previous) { return previous.y + previous.h; }},
};

/// What waits for the value that is being read.
struct Pending {
    enum class Kind { parenthesis, leadingMinus, operation };

    Kind kind;
    const Operator *operation = nullptr;
    std::int64_t left = 0; ///< of the operation
};

using Kind = Pending::Kind;

/// Nobody writes so many; a script of nothing else would take many times its own size.
constexpr std::size_t deepestNesting = 1000000;

class NumberReader
{
public:
    NumberReader(ScriptReader &words, const Rectangle &previous)
        : m_words(words), m_previous(previous)
    {}

    std::int64_t Read();

private:
    std::int64_t ReadPart();
    std::optional<std::int64_t> Finish(std::int64_t value);
    void Await(Pending pending);
    bool IsPending(Kind kind) const { return !m_pending.empty() && m_pending.back().kind == kind; }

    ScriptReader &m_words;
    const Rectangle &m_previous;
    // Kept here and not on the call stack, which a script could exhaust.
    std::vector<Pending> m_pending;
};

std::int64_t NumberReader::Read()
{
    for (;;) {
        if (const auto value = Finish(ReadPart()))
            return *value;
    }
}

/// Reads up to the first number or word that has a value.
std::int64_t NumberReader::ReadPart()
{
    for (;;) {
        if (m_words.TakeSign('('))
            Await({Kind::parenthesis});
        else if (m_words.TakeSign('-'))
            Await({Kind::leadingMinus});
        else
            break;
    }
    if (m_words.NextIs(WordKind::number))
        return m_words.Take().value;
    // The place of an object may reach beyond what a number can be.
    if (const PreviousWord *word = m_words.TakeIn(previousWords))
        return CheckedNumber(word->value(m_previous), m_words);
    m_words.FailExpected("number");
}

void NumberReader::Await(Pending pending)
{
    if (m_pending.size() == deepestNesting)
        m_words.Fail("the number is nested more than 1000000 deep");
    m_pending.push_back(pending);
}

/// Puts the value where it was waited for; nothing if an operator follows and wants another part.
///
/// An operation waits for one part only, which makes operators apply from left to right. A leading
/// minus stays until no operator follows, and so takes all that is behind it.
std::optional<std::int64_t> NumberReader::Finish(std::int64_t value)
{
    for (;;) {
        if (IsPending(Kind::operation)) {
            const Pending &pending = m_pending.back();
            value = pending.operation->apply(pending.left, value, m_words);
            m_pending.pop_back();
        }
        if (const Operator *operation = TakeOperator(m_words)) {
            Await({Kind::operation, operation, value});
            return std::nullopt;
        }
        if (m_pending.empty())
            return value;
        if (IsPending(Kind::parenthesis))
            m_words.ExpectSign(')');
        else
            value = -value;
        m_pending.pop_back();
    }
}

} // namespace

std::int64_t ReadNumber(ScriptReader &words, const Rectangle &previous)
{
    return NumberReader(words, previous).Read();
}

} // namespace palmtools
