#include "palmtools/pilrc/script_reader.h"

#include "palmtools/common/shown.h"

namespace palmtools {
namespace {

/// A word can be as long as the script; a message must not.
std::string ShownInPart(std::string_view written)
{
    constexpr std::size_t most = 200;
    return Shown(written.substr(0, most)) + (written.size() > most ? "..." : "");
}

} // namespace

ScriptReader::ScriptReader(std::string_view script, Warnings &warnings)
    : m_scanner(script, warnings), m_warnings(warnings)
{}

const Word &ScriptReader::Peek()
{
    if (!m_hasNext) {
        m_next = m_scanner.Next();
        m_hasNext = true;
    }
    return m_next;
}

Word ScriptReader::Take()
{
    const Word word = Peek();
    m_hasNext = false;
    return word;
}

bool ScriptReader::NextIsName(std::string_view name)
{
    return NextIs(WordKind::name) && EqualIgnoringCase(m_next.written, name);
}

bool ScriptReader::NextIsSign(char sign)
{
    return NextIs(WordKind::sign) && m_next.written.front() == sign;
}

bool ScriptReader::TakeName(std::string_view name)
{
    const bool found = NextIsName(name);
    if (found)
        Take();
    return found;
}

bool ScriptReader::TakeSign(char sign)
{
    const bool found = NextIsSign(sign);
    if (found)
        Take();
    return found;
}

void ScriptReader::ExpectName(std::string_view name)
{
    if (!TakeName(name))
        FailExpected(name);
}

void ScriptReader::ExpectSign(char sign)
{
    if (!TakeSign(sign))
        FailExpected({&sign, 1});
}

void ScriptReader::Warn(std::string_view text)
{
    m_warnings.Add(m_scanner.line(), text);
}

void ScriptReader::Fail(const std::string &text) const
{
    throw ScriptError(m_scanner.line(), text);
}

void ScriptReader::FailExpected(std::string_view what)
{
    const Word &word = Peek();
    const std::string found =
        word.kind == WordKind::end ? "end of file" : ShownInPart(word.written);
    Fail(std::string(what) + " expected, not '" + found + "'");
}

} // namespace palmtools
