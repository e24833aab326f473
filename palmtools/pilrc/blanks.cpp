#include "palmtools/pilrc/blanks.h"

#include <string_view>

namespace palmtools {
namespace {

constexpr std::string_view lineComment = "//";
constexpr std::string_view open = "/*";
constexpr std::string_view close = "*/";

void TakeLineComment(ScriptCursor &cursor)
{
    while (!cursor.AtEnd() && !IsLineEnd(cursor.Front())) {
        if (cursor.Front() == '\0')
            cursor.FailAtZeroByte();
        cursor.Take(1);
    }
}

/// Takes what a comment has beside the signs that open and close one.
void TakeCommentByte(ScriptCursor &cursor)
{
    if (cursor.AtEnd())
        throw ScriptError(cursor.LastLine(), "the comment is not closed");
    if (cursor.Front() == '\0')
        cursor.FailAtZeroByte();
    if (IsLineEnd(cursor.Front()))
        cursor.TakeLineEnd();
    else
        cursor.Take(1);
}

/// Comments nest; they are counted and not called for, so that no script exhausts the stack.
void TakeBlockComment(ScriptCursor &cursor, Warnings &warnings)
{
    cursor.Take(open.size());
    for (std::size_t depth = 1; depth > 0;) {
        if (cursor.rest().starts_with(open)) {
            warnings.Add(cursor.line(), "comment inside a comment");
            cursor.Take(open.size());
            ++depth;
        } else if (cursor.rest().starts_with(close)) {
            cursor.Take(close.size());
            --depth;
        } else {
            TakeCommentByte(cursor);
        }
    }
}

} // namespace

void TakeBlanks(ScriptCursor &cursor, Warnings &warnings)
{
    while (!cursor.AtEnd()) {
        const char c = cursor.Front();
        if (c == ' ' || c == '\t')
            cursor.Take(1);
        else if (IsLineEnd(c))
            cursor.TakeLineEnd();
        else if (cursor.rest().starts_with(lineComment))
            TakeLineComment(cursor);
        else if (cursor.rest().starts_with(open))
            TakeBlockComment(cursor, warnings);
        else
            return;
    }
}

} // namespace palmtools
