// What the maker's site answers when it is asked for the newest version.

#include "fuzz/require.h"
#include "ui/main/version_log.h"

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray answer = BytesOf(data, size);
    const bool isNewer = IsNewer(answer, QStringLiteral("1.1.2"));
    Require(!isNewer || answer.first(std::min(answer.size(), qsizetype(4096))).contains('.'),
            "a newer version has a full stop");
    Require(!IsNewer(answer, QStringLiteral("9.9.9")), "no version is newer than the last");
    return 0;
}
