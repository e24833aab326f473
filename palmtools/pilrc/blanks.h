#pragma once

#include "palmtools/pilrc/diagnostics.h"
#include "palmtools/pilrc/script_cursor.h"

namespace palmtools {

/// Takes all that may stand between words: blanks, tabs, line ends and comments.
/// Adds a warning for each comment that begins inside of another; throws ScriptError at a comment
/// that is not closed or has a zero byte in it.
void TakeBlanks(ScriptCursor &cursor, Warnings &warnings);

} // namespace palmtools
