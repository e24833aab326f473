#include "help/reader/viewer_objects.h"

#include "help/html_text.h"
#include "help/viewer_format.h"

#include <algorithm>

namespace vellumo {
namespace {

constexpr qsizetype longestText = 1024; // in bytes; the rest is left out
constexpr qsizetype mostContexts = 65'536;

/// Of a text that is too long, up to where a letter begins in UTF-8.
qsizetype LengthToKeep(QByteArrayView text)
{
    qsizetype length = std::min(text.size(), longestText);
    while (length > 0 && length < text.size() && (text[length] & 0xC0) == 0x80)
        --length;
    return length;
}

} // namespace

QString TextAt(QByteArrayView bytes, quint64 offset)
{
    if (offset >= quint64(bytes.size()))
        return {};
    const QByteArrayView text = bytes.sliced(qsizetype(offset));
    const auto length = qsizetype(qstrnlen(text.data(), size_t(LengthToKeep(text))));
    return DecodeHtml(text.first(length).toByteArray());
}

std::map<quint16, QString> ReadSystemItems(QByteArrayView bytes)
{
    using namespace systemObject;
    std::map<quint16, QString> items;
    for (qsizetype at = firstItem; at + item::headerSize <= bytes.size();) {
        const QByteArrayView header = bytes.sliced(at);
        const QByteArrayView rest = header.sliced(item::headerSize);
        const qsizetype length = std::min<qsizetype>(Get(header, item::length), rest.size());
        items.try_emplace(Get(header, item::code), TextAt(rest.first(length), 0));
        at += item::headerSize + length;
    }
    return items;
}

std::vector<ContextEntry> ReadContexts(QByteArrayView bytes)
{
    using namespace contextObject;
    std::vector<ContextEntry> entries;
    const qsizetype end = std::min(bytes.size(), firstPair + mostContexts * pair::size);
    for (qsizetype at = firstPair; at + pair::size <= end; at += pair::size) {
        const QByteArrayView entry = bytes.sliced(at);
        entries.push_back({Get(entry, pair::number), Get(entry, pair::page)});
    }
    return entries;
}

} // namespace vellumo
