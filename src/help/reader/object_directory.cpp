#include "help/reader/object_directory.h"

#include <algorithm>

namespace vellumo {

bool ObjectDirectory::Add(QByteArrayView name, const ObjectPlace &place)
{
    const qsizetype before = m_places.size();
    ObjectPlace &kept = m_places[name.toByteArray().toLower()];
    if (m_places.size() == before)
        return false;
    kept = place;
    return true;
}

std::optional<ObjectPlace> ObjectDirectory::Find(QByteArrayView name) const
{
    const auto found = m_places.constFind(name.toByteArray().toLower());
    return found == m_places.cend() ? std::nullopt : std::optional(*found);
}

quint64 ObjectDirectory::EndOf(quint64 section) const
{
    quint64 end = 0;
    for (const ObjectPlace &place : m_places)
        if (place.section == section)
            end = std::max(end, place.offset + place.length);
    return end;
}

QByteArrayView ObjectDirectory::LongestEnding(QByteArrayView path) const
{
    if (path.endsWith('/'))
        return {}; // a folder
    const QByteArray folded = path.toByteArray().toLower();
    for (qsizetype slash = folded.indexOf('/'); slash >= 0;
         slash = folded.indexOf('/', slash + 1)) {
        // A key that points into the path: nothing is copied for each of its folders.
        const auto ending = QByteArray::fromRawData(folded.data() + slash, folded.size() - slash);
        if (m_places.contains(ending))
            return path.sliced(slash);
    }
    return {};
}

} // namespace vellumo
