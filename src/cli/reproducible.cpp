#include "cli/reproducible.h"

#include <QtEndian>

#include <limits>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// The handheld counts the seconds from 1904.
constexpr qint64 from1904To1970 = 2082844800;
constexpr qint64 latest = std::numeric_limits<quint32>::max() - from1904To1970;
constexpr qint64 first2000 = 946684800;
constexpr auto epochName = "SOURCE_DATE_EPOCH";

QString IdentifierFrom(const QByteArray &project)
{
    return QString::fromLatin1(FingerprintOf(project).toHex().first(32)).toUpper();
}

} // namespace

Result<std::optional<Reproduction>> ReproductionOf(const QByteArray &project,
                                                   const CommandLine &line)
{
    const QByteArray epoch = qgetenv(epochName);
    if (epoch.isEmpty() && !line.Has(Option::Identifier))
        return std::optional<Reproduction>();
    bool isNumber = true;
    const qint64 seconds = epoch.isEmpty() ? first2000 : epoch.toLongLong(&isNumber);
    if (!isNumber || seconds < 0 || seconds > latest)
        return Error{u"SOURCE_DATE_EPOCH must be 0 to %1 seconds."_s.arg(latest)};
    return std::optional(Reproduction{line.Has(Option::Identifier) ? line.Value(Option::Identifier)
                                                                   : IdentifierFrom(project),
                                      seconds});
}

void SetTimes(QByteArray &database, qint64 secondsSince1970)
{
    const auto time = static_cast<quint32>(secondsSince1970 + from1904To1970);
    for (const qsizetype offset : {36, 40}) // of the creation and the last change
        qToBigEndian(time, database.data() + offset);
}

} // namespace vellumo
