// A compiled help file: it is opened or refused with a reason, and every page that it names can be
// asked for.

#include "fuzz/scratch_folder.h"
#include "help/reader/help_file.h"

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto help = HelpFile::Open(ScratchFile(QStringLiteral("help.chm"), data, size));
    if (!help) {
        Require(!help.error().text.isEmpty(), "a refusal has its reason");
        return 0;
    }
    Require(!help->DefaultPage().isEmpty(), "there is a page to begin with");
    for (const quint32 context : {0U, 1U, 103U, 0xFFFFFFFFU})
        Require(!help->PageOf(context).isEmpty(), "each number leads to a page");
    // As many as a person looks at; each may take long to unpack.
    constexpr std::size_t mostPages = 10;
    int level = -1;
    std::size_t pages = 0;
    for (const ContentsEntry &entry : help->Contents()) {
        Require(entry.level >= 0 && entry.level <= level + 1, "no level is left out");
        level = entry.level;
        if (pages++ >= mostPages)
            continue;
        static_cast<void>(help->Object(entry.page));
        static_cast<void>(help->TitleOf(entry.page));
    }
    return 0;
}
