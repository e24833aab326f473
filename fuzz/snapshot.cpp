// What a rescue copy holds below its seal, which no arbitrary bytes would have: it is refused, or
// read as just what these bytes are made of.

#include "model/snapshot.h"
#include "fuzz/require.h"

#include <QCryptographicHash>

using namespace vellumo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content = BytesOf(data, size);
    const QByteArray bytes = "Vellumo rescue 1" +
                             QCryptographicHash::hash(content, QCryptographicHash::Sha256) +
                             content;
    const auto snapshot = ReadSnapshot(bytes);
    Require(snapshot || !snapshot.error().text.isEmpty(), "a refusal has its reason");
    if (snapshot)
        Require(WriteSnapshot(*snapshot) == bytes, "it is written as the same bytes");
    return 0;
}
