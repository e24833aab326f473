#pragma once

#include "readback/database_check.h"
#include "readback/databases.h"
#include "readback/projects.h"

namespace vellumo {

/// Findings as lines of code, field, question where there is one, and text.
inline QStringList Lines(const QList<Finding> &findings)
{
    QStringList lines;
    for (const Finding &finding : findings) {
        QString place = finding.place.field;
        if (finding.place.question != 0)
            place += QStringLiteral(" %1").arg(finding.place.question);
        lines += QStringLiteral("%1 [%2] %3").arg(finding.code, place, finding.text);
    }
    return lines;
}

/// What is found in a database's bytes, or the one line "unreadable ..." where they are none.
inline QStringList LinesOf(const QByteArray &bytes, const Project &project)
{
    const Result<PalmDatabase> database = ReadDatabase(bytes);
    if (!database)
        return {QStringLiteral("unreadable ") + database.error().text};
    return Lines(CheckDatabase(*database, project));
}

inline void PrintTo(const QStringList &lines, std::ostream *out)
{
    *out << lines.join(u'\n').toStdString();
}

/// Bytes of a database and what must be found in them.
struct Damage {
    const char *what;
    QByteArray bytes;
    QStringList lines;
};

inline void ExpectFound(const Damage &damage, const Project &project)
{
    SCOPED_TRACE(damage.what);
    EXPECT_EQ(LinesOf(damage.bytes, project), damage.lines);
}

inline QByteArray TenTypes()
{
    return Golden(QStringLiteral("tentypes"));
}

/// tentypes with bytes of a resource replaced.
inline QByteArray Replaced(QByteArrayView type, quint32 number, const QByteArray &from,
                           const QByteArray &to)
{
    return WithData(TenTypes(), type, number, [&](QByteArray data) {
        EXPECT_TRUE(data.contains(from));
        return data.replace(data.indexOf(from), from.size(), to);
    });
}

inline QByteArray WithByteAfter(QByteArrayView type, quint32 number)
{
    return WithData(TenTypes(), type, number, [](const QByteArray &data) { return data + '\0'; });
}

/// tentypes without one of its resources.
inline QByteArray Without(QByteArrayView type, quint32 number)
{
    QList<PalmResource> resources = Read(TenTypes()).resources;
    resources.removeIf([&](const PalmResource &resource) {
        return resource.type == type && resource.number == number;
    });
    return WithResources(TenTypes(), resources);
}

/// Each line without its text.
inline QStringList CodesOf(const QStringList &lines)
{
    QStringList codes;
    for (const QString &line : lines)
        codes += line.first(line.indexOf(u']') + 1);
    return codes;
}

} // namespace vellumo
