#include "ui/main/update_check.h"

#include "ui/common/prompts.h"
#include "ui/main/web_answer.h"

#include <QUrl>
#include <QVersionNumber>

#include <optional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr qsizetype bytesLookedAt = 4096;

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

bool UserWantsIt(QWidget *parent)
{
    const Box box = {.text = u"A new version of Vellumo is available for download.  "
                             "Would you like to download it?"_s,
                     .title = u"Vellumo Update"_s,
                     .buttons = QMessageBox::Yes | QMessageBox::No,
                     .defaultButton = QMessageBox::No,
                     .closeButton = QMessageBox::No};
    return ShowBox(parent, box) == QMessageBox::Yes;
}

} // namespace

bool IsNewer(QByteArrayView log, const QString &runningVersion)
{
    const QByteArrayView start = log.first(std::min(log.size(), bytesLookedAt));
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

void CheckForUpdate(QWidget *parent, const Environment &environment,
                    std::chrono::milliseconds timeOut)
{
    const QUrl address(environment.siteAddress + "/vmversionlog"_L1);
    if (IsNewer(StartOfAnswer(address, bytesLookedAt, timeOut), environment.version) &&
        UserWantsIt(parent))
        environment.open(environment.siteAddress + "/download"_L1);
}

} // namespace vellumo
