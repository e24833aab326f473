#include "palmtools/pilrc/compiler.h"

#include "palmtools/pilrc/form_statement.h"
#include "palmtools/pilrc/hex_statement.h"
#include "palmtools/pilrc/navigation_statement.h"
#include "palmtools/pilrc/string_table_statement.h"
#include "palmtools/pilrc/text_statements.h"

#include <optional>

namespace palmtools {
namespace {

struct Statement {
    std::string_view name;
    void (*read)(ArgumentReader &arguments, ResourceList &resources);
};

constexpr Statement statements[] = {
    {"HEX", ReadHex},
    {"STRINGTABLE", ReadStringTable},
    {"FORM", ReadForm},
    {"NAVIGATION", ReadNavigation},
    {"APPLICATIONICONNAME", ReadApplicationIconName},
    {"VERSION", ReadVersion},
};

void ReadStatement(ArgumentReader &arguments, ResourceList &resources)
{
    const Statement *statement = arguments.words().TakeIn(statements);
    if (!statement)
        arguments.words().FailExpected("statement");
    statement->read(arguments, resources);
}

std::vector<Resource> ReadScript(ScriptReader &words)
{
    if (words.NextIs(WordKind::end))
        words.Fail("the script is empty");
    ArgumentReader arguments(words);
    ResourceList resources;
    while (!words.NextIs(WordKind::end))
        ReadStatement(arguments, resources);
    return resources.TakeAll();
}

} // namespace

Compilation CompileScript(std::string_view script)
{
    Compilation compilation;
    Warnings warnings;
    std::optional<Diagnostic> failure;
    try {
        ScriptReader words(script, warnings);
        compilation.resources = ReadScript(words);
    } catch (const ScriptError &error) {
        failure = Diagnostic{Severity::error, error.line(), error.what()};
    }
    compilation.diagnostics = warnings.kept();
    compilation.moreWarnings = warnings.more();
    compilation.failed = failure.has_value();
    if (failure)
        compilation.diagnostics.push_back(*failure);
    return compilation;
}

} // namespace palmtools
