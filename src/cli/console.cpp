#include "cli/console.h"

namespace {

void WriteLine(std::ostream &stream, const QString &line)
{
    const QByteArray bytes = line.toLocal8Bit();
    stream.write(bytes.constData(), bytes.size()) << '\n';
}

} // namespace

void Console::Tell(const QString &line) const
{
    WriteLine(out, line);
}

void Console::Complain(const QString &line) const
{
    WriteLine(err, line);
}

Exit Refuse(const Console &console, Exit exit, const Error &error)
{
    console.Complain(Describe(error));
    return exit;
}
