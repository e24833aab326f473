#include "palmtools/pilrc/script_reader.h"

#include "palmtools/common/shown.h"

#include <utility>

namespace palmtools {

ScriptReader::ScriptReader(std::string_view script, std::vector<Diagnostic> &warnings)
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

void ScriptReader::Warn(std::string text)
{
    m_warnings.push_back({Severity::warning, m_scanner.line(), std::move(text)});
}

void ScriptReader::Fail(const std::string &text) const
{
    throw ScriptError(m_scanner.line(), text);
}

void ScriptReader::FailExpected(std::string_view what)
{
    const Word &word = Peek();
    const std::string found = word.kind == WordKind::end ? "end of file" : Shown(word.written);
    Fail(std::string(what) + " expected, not '" + found + "'");
}

} // namespace palmtools
