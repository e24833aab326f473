#include "ui/main/version_log.h"

#include <QVersionNumber>

#include <algorithm>
#include <optional>

namespace vellumo {
namespace {

std::optional<int> DigitAt(QByteArrayView text, qsizetype index)
{
    if (index < 0 || index >= text.size() || text[index] < '0' || text[index] > '9')
        return std::nullopt;
    return text[index] - '0';
}

std::optional<int> RevisionAt(QByteArrayView text, qsizetype index)
{
    const bool isFullStop = index < text.size() && text[index] == '.';
    return isFullStop ? 0 : DigitAt(text, index);
}

} // namespace

bool IsNewer(QByteArrayView log, const QString &runningVersion)
{
    const QByteArrayView start = log.first(std::min(log.size(), versionLogStart));
    const qsizetype dot = start.indexOf('.');
    if (dot < 0)
        return false;
    const std::optional<int> majorDigit = DigitAt(start, dot - 1);
    const std::optional<int> minorDigit = DigitAt(start, dot + 1);
    const std::optional<int> revisionDigit = RevisionAt(start, dot + 3);
    if (!majorDigit || !minorDigit || !revisionDigit)
        return false;

    // By intention not in order of significance.
    const QVersionNumber running = QVersionNumber::fromString(runningVersion);
    return *minorDigit > running.minorVersion() || *revisionDigit > running.microVersion() ||
           *majorDigit > running.majorVersion();
}

} // namespace vellumo
