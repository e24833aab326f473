#include "palmtools/pilrc/numbers.h"

#include "palmtools/common/ascii.h"

#include <cstdlib>
#include <optional>
#include <string_view>
#include <vector>

namespace palmtools {
namespace {

constexpr std::int64_t largestNumber = 0xFFFFFFFF;

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
    char sign; ///< of an operator; '(' of a parenthesis, '~' of a leading minus
    std::int64_t left = 0;
};

constexpr char leadingMinus = '~';

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
    std::int64_t Apply(const Pending &operation, std::int64_t right) const;
    std::int64_t Product(std::int64_t left, std::int64_t right) const;
    std::int64_t Checked(std::int64_t value) const;
    bool OperatorIsPending() const;

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
            m_pending.push_back({'('});
        else if (m_words.TakeSign('-'))
            m_pending.push_back({leadingMinus});
        else
            break;
    }
    if (m_words.NextIs(WordKind::number))
        return m_words.Take().value;
    if (const PreviousWord *word = m_words.TakeIn(previousWords))
        return Checked(word->value(m_previous));
    m_words.FailExpected("number");
}

/// Puts the value where it was waited for; nothing if an operator follows and wants another part.
std::optional<std::int64_t> NumberReader::Finish(std::int64_t value)
{
    for (;;) {
        if (OperatorIsPending()) {
            value = Apply(m_pending.back(), value);
            m_pending.pop_back();
        }
        for (const char sign : {'+', '-', '*', '/'}) {
            if (m_words.TakeSign(sign)) {
                m_pending.push_back({sign, value});
                return std::nullopt;
            }
        }
        if (m_pending.empty())
            return value;
        if (m_pending.back().sign == '(')
            m_words.ExpectSign(')');
        else
            value = -value;
        m_pending.pop_back();
    }
}

std::int64_t NumberReader::Apply(const Pending &operation, std::int64_t right) const
{
    switch (operation.sign) {
    case '+':
        return Checked(operation.left + right);
    case '-':
        return Checked(operation.left - right);
    case '*':
        return Product(operation.left, right);
    default:
        if (right == 0)
            m_words.Fail("division by zero");
        return operation.left / right;
    }
}

std::int64_t NumberReader::Product(std::int64_t left, std::int64_t right) const
{
    if (left != 0 && std::abs(right) > largestNumber / std::abs(left))
        m_words.Fail("the number is too large");
    return left * right;
}

std::int64_t NumberReader::Checked(std::int64_t value) const
{
    if (std::abs(value) > largestNumber)
        m_words.Fail("the number is too large");
    return value;
}

bool NumberReader::OperatorIsPending() const
{
    return !m_pending.empty() && m_pending.back().sign != '(' &&
           m_pending.back().sign != leadingMinus;
}

} // namespace

std::int64_t ReadNumber(ScriptReader &words, const Rectangle &previous)
{
    return NumberReader(words, previous).Read();
}

} // namespace palmtools
