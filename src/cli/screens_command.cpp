#include "cli/screens_command.h"

#include "cli/checked_database.h"
#include "cli/inputs.h"
#include "cli/outputs.h"
#include "cli/verify_command.h"
#include "model/project_reader.h"
#include "screens/screens_page.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr auto drawn = "drawn"_L1;

/// The bytes of the database in an input, or of that which is made of the project in it.
CheckedDatabase DatabaseIn(const QString &input, const CommandLine &line, const Console &console)
{
    const Result<QByteArray> bytes = ReadInput(input, eitherLimit, console);
    if (!bytes)
        return {Refuse(console, Exit::Unreadable, bytes.error())};
    if (LooksLikeDatabase(*bytes))
        return {Exit::Fine, *bytes};
    Result<Project> project = ReadProject(*bytes);
    if (!project)
        return {Refuse(console, Exit::Unreadable,
                       {project.error().text, InputName(input), project.error().line})};
    return MakeCheckedDatabase(*project, InputName(input), line, console);
}

Ending AppendScreens(QList<DatabaseScreens> &all, const QString &input, const CommandLine &line,
                     const Console &console)
{
    const CheckedDatabase made = DatabaseIn(input, line, console);
    if (made.exit != Exit::Fine)
        return made.exit;
    const Result<PalmDatabase> database = ReadDatabase(made.bytes);
    if (!database)
        return Refuse(console, Exit::Unreadable, {database.error().text, InputName(input)});
    all.append(ScreensOf(*database));
    ComplainOf(all.last().findings, InputName(input), console);
    return {all.last().findings.isEmpty() ? Exit::Fine : Exit::NotPassed, drawn,
            u"Its screens were drawn."_s};
}

/// What became of each input; that is known only when the page of all is written.
void TellOf(const QStringList &inputs, QList<Ending> endings, bool written, const Console &console)
{
    for (qsizetype i = 0; i < inputs.size(); ++i) {
        if (!written && endings[i].code == drawn)
            endings[i] = {endings[i].exit, "not-drawn"_L1,
                          u"Its screens could be drawn, and nothing was written."_s};
        Tell(endings[i], InputName(inputs[i]), console);
    }
}

} // namespace

Exit DrawScreens(const CommandLine &line, const Console &console)
{
    const QString target = line.Value(Option::Output, u"-"_s);
    if (const Exit checked = CheckOutput(target, line.inputs, console); checked != Exit::Fine)
        return checked;
    QList<DatabaseScreens> all;
    QList<Ending> endings;
    TryEachInput(line, console, [&](const QString &input) {
        endings.append(AppendScreens(all, input, line, console));
    });
    const Exit worst = std::ranges::max(endings, {}, &Ending::exit).exit;
    const Ending page =
        all.isEmpty() ? Ending(worst) : Deliver(target, ScreensPage(all), "screens"_L1, console);
    TellOf(line.inputs, endings, page.code == "screens"_L1, console);
    TellOfFile(page, target, console);
    return std::max(worst, page.exit);
}

} // namespace vellumo
