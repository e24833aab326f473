#include "cli/inputs.h"

#include "model/project_format.h"
#include "model/project_reader.h"
#include "readback/palm_database.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

bool IsStream(const QString &name)
{
    return name == "-"_L1;
}

Result<QByteArray> ReadStream(const FileLimit &limit, const Console &console)
{
    QByteArray bytes(limit.bytes + 1, Qt::Uninitialized); // one more shows that there are too many
    console.in.read(bytes.data(), bytes.size());
    bytes.truncate(console.in.gcount());
    if (console.in.bad())
        return Error{u"Standard input cannot be read"_s, InputName(u"-"_s)};
    if (bytes.size() > limit.bytes)
        return TooLarge(InputName(u"-"_s), limit);
    return bytes;
}

} // namespace

constinit const FileLimit eitherLimit = {std::max(projectLimit.bytes, databaseLimit.bytes),
                                         "project or database"_L1};

Result<QByteArray> ReadInput(const QString &name, const FileLimit &limit, const Console &console)
{
    return IsStream(name) ? ReadStream(limit, console) : ReadWholeFile(name, limit);
}

// XML in one-byte characters has no zero byte; the header of a database is full of them.
bool LooksLikeDatabase(const QByteArray &bytes)
{
    const bool isUtf16 = bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
    return !isUtf16 && bytes.left(78).contains('\0');
}

Result<Project> ReadProjectInput(const QString &name, const Console &console,
                                 QByteArray *bytesOfInput)
{
    const Result<QByteArray> bytes = ReadInput(name, projectLimit, console);
    if (!bytes)
        return bytes.error();
    if (bytesOfInput)
        *bytesOfInput = *bytes;
    Result<Project> project = ReadProject(*bytes);
    if (!project)
        return Error{project.error().text, InputName(name), project.error().line};
    return project;
}

bool RefusedAsSecond(const QString &first, const QString &second, const Console &console)
{
    if (!IsStream(first) || !IsStream(second))
        return false;
    RefuseUse(console, u"Standard input, '-', can be read once only."_s);
    return true;
}

QString InputName(const QString &name)
{
    return IsStream(name) ? u"standard input"_s : name;
}

void TryEachInput(const CommandLine &line, const Console &console,
                  const std::function<void(const QString &input)> &act)
{
    const qsizetype count = line.inputs.size();
    for (qsizetype i = 0; i < count; ++i) {
        const QString &input = line.inputs[i];
        if (count > 1)
            console.Progress(u"%1 of %2: %3"_s.arg(QString::number(i + 1), QString::number(count),
                                                   InputName(input)));
        act(input);
    }
}

Exit ForEachInput(const CommandLine &line, const Console &console,
                  const std::function<Ending(const QString &input)> &act)
{
    Exit worst = Exit::Fine;
    TryEachInput(line, console, [&](const QString &input) {
        const Ending ending = act(input);
        Tell(ending, InputName(input), console);
        worst = std::max(worst, ending.exit);
    });
    return worst;
}

Exit ForInput(const CommandLine &line, const Console &console,
              const std::function<Ending(const QString &input)> &act)
{
    return ForEachInput({.inputs = {line.inputs.first()}}, console, act);
}

} // namespace vellumo
