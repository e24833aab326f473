#include "cli/console.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

void WriteLine(std::ostream &stream, const QByteArray &line)
{
    stream.write(line.constData(), line.size()) << '\n';
}

QString ForPerson(const Notice &notice)
{
    return notice.shown.isEmpty() ? Visible(notice.text) : notice.shown;
}

bool Wants(const Console &console, const Notice &notice)
{
    if (!console.quiet)
        return true;
    if (notice.kind == "result"_L1)
        return console.json;
    return !notice.advice; // what the exit status comes of is never kept back
}

QLatin1StringView CodeOf(Exit exit)
{
    switch (exit) {
    case Exit::Fine: // nobody refuses with it
    case Exit::NotPassed:
        return "not-passed"_L1;
    case Exit::WrongUse:
        return "wrong-use"_L1;
    case Exit::Unreadable:
        return "unreadable"_L1;
    case Exit::ToolFailed:
        return "tool-failed"_L1;
    case Exit::NotWritten:
        break;
    }
    return "not-written"_L1;
}

} // namespace

void Console::Tell(const Notice &notice) const
{
    if (!Wants(*this, notice))
        return;
    WriteLine(out, json ? ToJson(notice) : ForPerson(notice).toLocal8Bit());
}

void Console::Complain(const Notice &error) const
{
    if (!Wants(*this, error))
        return;
    if (json)
        WriteLine(out, ToJson(error));
    else
        WriteLine(err,
                  Describe(Error{ForPerson(error), Visible(error.file), error.line}).toLocal8Bit());
}

void Console::Progress(const QString &line) const
{
    if (showProgress && !quiet)
        WriteLine(err, Visible(line).toLocal8Bit());
}

void Console::Write(const QByteArray &bytes) const
{
    out.write(bytes.constData(), bytes.size());
}

Exit Refuse(const Console &console, Exit exit, const Error &error)
{
    console.Complain({.kind = "error"_L1,
                      .code = CodeOf(exit),
                      .text = error.text,
                      .file = error.file,
                      .line = error.line});
    return exit;
}

Exit RefuseUse(const Console &console, const QString &reason)
{
    return Refuse(console, Exit::WrongUse, {reason, u"vellumo"_s});
}

} // namespace vellumo
