#include "palmtools/pilrc/compiler.h"

#include "palmtools/pilrc/form_statement.h"
#include "palmtools/pilrc/hex_statement.h"
#include "palmtools/pilrc/navigation_statement.h"
#include "palmtools/pilrc/string_table_statement.h"
#include "palmtools/pilrc/text_statements.h"

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
    try {
        ScriptReader words(script, compilation.diagnostics);
        compilation.resources = ReadScript(words);
    } catch (const ScriptError &error) {
        compilation.failed = true;
        compilation.diagnostics.push_back({Severity::error, error.line(), error.what()});
    }
    return compilation;
}

} // namespace palmtools
