#include "designer/told_words.h"

#include <string_view>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr auto help = R"(Vellumo Designer prepares data-collection forms for Palm OS handhelds.

  vellumo-designer [PROJECT.vmp]
  vellumo-designer --help | --version

Without a project the designer starts with its splash and, unless you turned it off,
asks for one. All words together are one path, so that blanks need no quotation marks.
A name without a folder is looked for in the folder of the program: for a project in
the current folder, write ./PROJECT.vmp.

vellumo does the same work without a window: see vellumo --help.
)"_L1;

} // namespace

std::optional<QString> WordsFor(int argc, const char *const *argv)
{
    const std::string_view word = argc == 2 ? argv[1] : "";
    if (word == "--help")
        return help;
    if (word == "--version")
        return u"vellumo-designer "_s + QStringLiteral(VELLUMO_VERSION) + u'\n';
    return std::nullopt;
}

} // namespace vellumo
