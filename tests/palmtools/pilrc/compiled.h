#pragma once

#include "palmtools/pilrc/compiler.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace palmtools {

/// The diagnostics of a script, one a line, as "LINE error|warning TEXT".
inline std::string DiagnosticsOf(std::string_view script)
{
    std::string lines;
    for (const Diagnostic &diagnostic : CompileScript(script).diagnostics) {
        lines += std::to_string(diagnostic.line);
        lines += diagnostic.severity == Severity::error ? " error " : " warning ";
        lines += diagnostic.text + "\n";
    }
    return lines;
}

/// A script and the diagnostics that it must have.
struct ScriptRow {
    const char *what;
    std::string script, diagnostics;
};

inline void ExpectDiagnostics(const std::vector<ScriptRow> &rows)
{
    for (const ScriptRow &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(DiagnosticsOf(row.script), row.diagnostics);
        const bool isError = row.diagnostics.find(" error ") != row.diagnostics.npos;
        EXPECT_EQ(CompileScript(row.script).failed, isError);
        EXPECT_EQ(CompileScript(row.script).resources.empty(), isError);
    }
}

/// How a form begins, on two lines; what follows stands on the third.
inline const std::string form = "FORM ID 1 AT (0 0 160 160)\nBEGIN\n";

} // namespace palmtools
