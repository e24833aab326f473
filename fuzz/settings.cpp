// The settings file: whatever is in it, a start goes on; what says 1 says 0 after it was changed,
// and what is not understood stays as it is.

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
    if (before.value >= 0)
        Require(after.value == 0, "the chooser is hidden from now on");
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly), "the file is still there");
    if (after.value != 0)
        Require(file.readAll() == BytesOf(data, size), "what is not understood stays");
    return 0;
}
