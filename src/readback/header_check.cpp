#include "readback/header_check.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// build-prc is told to hide it: it is nothing that a user starts.
constexpr quint32 expectedAttributes = DatabaseAttribute::resources | DatabaseAttribute::hidden;
constexpr quint32 expectedVersion = 1;

void CheckText(QLatin1StringView code, QLatin1StringView field, QByteArrayView found,
               QByteArrayView expected, QList<Finding> &findings)
{
    if (found != expected)
        findings.append(OtherText(code, {field}, found, expected));
}

/// A time of a database for a message.
QString ShownTime(quint32 seconds)
{
    // The clock of a place that nobody knows: counted without any zone.
    const QDateTime start(QDate(1904, 1, 1), QTime(0, 0), Qt::UTC);
    return start.addSecs(seconds).toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

void CheckNumber(QLatin1StringView code, QLatin1StringView field, quint32 found, quint32 expected,
                 QList<Finding> &findings)
{
    if (found != expected)
        findings.append({code,
                         {field},
                         u"The %1: 0x%2 instead of 0x%3."_s.arg(field)
                             .arg(found, 4, 16, QChar(u'0'))
                             .arg(expected, 4, 16, QChar(u'0'))});
}

} // namespace

void CheckKind(const PalmDatabase &database, QList<Finding> &findings)
{
    CheckText("database-type"_L1, "database type"_L1, database.type, "kelp", findings);
    CheckText("database-creator"_L1, "database creator"_L1, database.creator, "Wmpt", findings);
}

void CheckHeader(const PalmDatabase &database, const QByteArray &expectedName,
                 QList<Finding> &findings)
{
    CheckText("database-name"_L1, "database name"_L1, database.name, expectedName, findings);
    CheckKind(database, findings);
    CheckNumber("database-attributes"_L1, "database attributes"_L1,
                database.attributes & ~DatabaseAttribute::backup, expectedAttributes, findings);
    CheckNumber("database-version"_L1, "database version"_L1, database.version, expectedVersion,
                findings);
}

void CheckOrder(const PalmDatabase &database, QList<Finding> &findings)
{
    if (!database.disorder.isEmpty())
        findings.append({"resource-order"_L1,
                         {"resources"_L1},
                         u"The resource %1, where it does not belong."_s.arg(database.disorder)});
}

QList<Finding> RemarksOn(const PalmDatabase &database)
{
    QList<Finding> remarks;
    if (database.backedUp != 0)
        remarks.append({"backup-time"_L1,
                        {"time of the last backup"_L1},
                        u"The database was backed up at %1."_s.arg(ShownTime(database.backedUp))});
    if (database.attributes & DatabaseAttribute::backup)
        remarks.append({"backup-bit"_L1,
                        {"database attributes"_L1},
                        u"The database is marked to be backed up."_s});
    if (database.changes != 0)
        remarks.append({"modification-number"_L1,
                        {"modification number"_L1},
                        u"The handheld's count of changes is %1."_s.arg(database.changes)});
    if (database.idSeed != 0)
        remarks.append({"unique-id-seed"_L1,
                        {"unique id seed"_L1},
                        u"The handheld's seed of record numbers is %1."_s.arg(database.idSeed)});
    return remarks;
}

} // namespace vellumo
