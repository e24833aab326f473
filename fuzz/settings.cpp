// The settings file: whatever is in it, a start goes on; what says 1 says 0 after it was changed,
// and what is not understood, or would then be too large, stays as it is.

#include "fuzz/scratch_folder.h"
#include "model/basRegistry.h"

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path = ScratchFile(QStringLiteral("settings.ini"), data, size);
    const QString folder = ScratchFolder().path();
    const ShowOpenForm before = ReadShowOpenForm(folder);
    Require(before.value >= -1 && before.value <= 1, "the value is one of three");
    Require((before.value == -1) == !before.message.isEmpty(), "a damaged file is told");

    HideOpenFormNextTime(folder);
    const ShowOpenForm after = ReadShowOpenForm(folder);
    Require(after.value == 0 || after.value == before.value, "it is hidden, or nothing is changed");
    constexpr std::size_t mayGrowTooLarge = 8ULL * 1024; // a character becomes an entity
    if (before.value >= 0 && size < mayGrowTooLarge)
        Require(after.value == 0, "the chooser is hidden from now on");
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly), "the file is still there");
    if (after.value != 0)
        Require(file.readAll() == BytesOf(data, size), "what is not changed stays");
    return 0;
}
