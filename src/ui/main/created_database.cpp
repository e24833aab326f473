#include "ui/main/created_database.h"

#include "palmgen/create_messages.h"
#include "platform/files.h"
#include "readback/database_check.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// As many findings as a box has room for; the first of them lead to the cause.
QStringList FirstFindings(const QList<Finding> &findings)
{
    constexpr qsizetype most = 6;
    QStringList lines;
    for (const Finding &finding : findings.first(std::min(most, findings.size())))
        lines += finding.text;
    if (findings.size() > most)
        lines += u"... and %1 more"_s.arg(findings.size() - most);
    return lines;
}

QStringList Differences(const QString &path, const Project &project)
{
    const Result<QByteArray> bytes = ReadWholeFile(path, databaseLimit);
    if (!bytes)
        return {Describe(bytes.error())};
    const Result<PalmDatabase> database = ReadDatabase(*bytes);
    if (!database)
        return {Describe({database.error().text, path})};
    return FirstFindings(CheckDatabase(*database, project));
}

QString Advice(const CreateReport &report)
{
    const bool started = std::ranges::none_of(
        report.runs, [](const ToolRun &run) { return run.end == ToolEnd::NotStarted; });
    return started ? u"Mend what these lines name, then review and create the Vellsheet again."_s
                   : u"Install Vellumo Designer again, or put its tools where the system finds "
                     "programs; then create the Vellsheet again."_s;
}

} // namespace

std::optional<CreatedFault> FaultOfCreated(const CreateReport &report, const Project &project)
{
    QStringList reasons = Differences(report.database, project);
    if (reasons.isEmpty())
        return {};
    if (const QString words = ReasonOf(report); !words.isEmpty())
        reasons += words;
    const QString text = QFileInfo::exists(report.database)
                             ? u"The database is not what your Vellsheet asks for. "
                               "Do not install it onto your Palm handheld."_s
                             : u"There is no database that you could install, "
                               "whatever was told before."_s;
    return CreatedFault{text, reasons.join(u'\n') + "\n\n"_L1 + Advice(report)};
}

} // namespace vellumo
