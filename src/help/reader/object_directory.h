#pragma once

#include <QByteArray>
#include <QHash>

#include <optional>

namespace vellumo {

/// Where the bytes of an object are.
struct ObjectPlace {
    quint64 section = 0; ///< archive::Section
    quint64 offset = 0;  ///< from the first byte of its section
    quint64 length = 0;
};

/// The objects of an archive by their full names, such as "/index.html". The case of ASCII letters
/// does not matter.
class ObjectDirectory
{
public:
    /// False for a name that is there already; it keeps its place.
    bool Add(QByteArrayView name, const ObjectPlace &place);

    qsizetype Count() const { return m_places.size(); }
    std::optional<ObjectPlace> Find(QByteArrayView name) const;

    /// Behind the last byte of all objects of a section; offsets and lengths are below 2^63.
    quint64 EndOf(quint64 section) const;

    /// The longest part of the path, from one of its slashes to its end, that is the name of an
    /// object; empty where there is none, and where the path ends in a slash.
    QByteArrayView LongestEnding(QByteArrayView path) const;

private:
    QHash<QByteArray, ObjectPlace> m_places; ///< by names with small letters
};

} // namespace vellumo
