#include "exchange/storable_text.h"

#include "model/unreadable_texts.h"
#include "platform/code_page.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// One that XML does not have, not even as a reference.
bool IsForbidden(QChar c)
{
    return c < u' ' && c != u'\t' && c != u'\n' && c != u'\r';
}

} // namespace

QString ObjectionToStoring(const QString &text)
{
    QByteArray bytes;
    if (const qsizetype lacking = AppendWindows1252(bytes, text); lacking >= 0)
        return u"It has the character %1, which windows-1252 does not have."_s.arg(
            DescribeCharacter(text, lacking));
    if (text.contains(valueEnd))
        return u"It has \"%1\", which ends a text in a project file."_s.arg(valueEnd);
    const auto forbidden = std::ranges::find_if(text, IsForbidden);
    if (forbidden != text.end())
        return u"It has the control character %1, which no project file can have."_s.arg(
            DescribeCharacter(text, forbidden - text.begin()));
    return {};
}

} // namespace vellumo
