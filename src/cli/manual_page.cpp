#include "cli/commands.h"
#include "cli/manual.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A text as the formatter is to print it.
QString Roff(const QString &text)
{
    QString roff = QString(text).replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s);
    for (const QChar control : {u'.', u'\''}) // at the beginning of a line, they begin a request
        if (roff.startsWith(control))
            roff.prepend("\\&"_L1);
    return roff.replace(u"\n."_s, u"\n\\&."_s).replace(u"\n'"_s, u"\n\\&'"_s);
}

/// A synopsis with what a person puts something in place of in italics: "PROJECT", "HEX32".
QString Synopsis(const QString &synopsis)
{
    static const QRegularExpression places(u"\\b([A-Z][A-Z0-9]+)\\b"_s);
    return Roff(QString(synopsis).replace(u'\n', u' ')).replace(places, u"\\fI\\1\\fR"_s);
}

QString OfCommand(const Command &command)
{
    return u".TP\n.B vellumo %1\n%2\n.br\n%3"_s.arg(Roff(command.name), Synopsis(command.synopsis),
                                                    Roff(command.help));
}

QString OfOption(const OptionRow &row)
{
    QString typed = u"\\fB\\-\\-%1\\fR"_s.arg(Roff(row.name));
    if (!row.letter.isEmpty())
        typed.prepend(u"\\fB\\-%1\\fR, "_s.arg(row.letter));
    if (!row.valueName.isEmpty())
        typed += u" \\fI%1\\fR"_s.arg(row.valueName);
    return u".TP\n%1\n%2\n"_s.arg(typed, Roff(row.help));
}

constexpr auto before = R"(.SH NAME
vellumo \- turn projects of Vellumo Designer into Palm databases, without a window
.SH SYNOPSIS
.B vellumo
.I COMMAND
[\fIOPTION\fR...] [\fINAME\fR...]
.br
.B vellumo help
[\fICOMMAND\fR]
.br
.B vellumo \-\-help
|
.B \-\-version
.SH DESCRIPTION
A project (\fI.vmp\fR) is a form for data collection on Palm OS handhelds; its database (\fI.prc\fR) is
what the handheld's viewer shows. This command does what the designer does with them, and more. A
name of \fB\-\fR is standard input or output; what follows \fB\-\-\fR is a name, whatever it begins with.
\fB\-h\fR is short for \fB\-\-help\fR.
.SH COMMANDS
)"_L1;

constexpr auto after = R"(.SH ENVIRONMENT
.TP
.B SOURCE_DATE_EPOCH
seconds since 1970: makes databases reproducible, with that moment for their times
.TP
.B TMPDIR
where programs that are named by \-\-pilrc and \-\-build\-prc work
.TP
.B PATH
where one of these two is looked for when the other is named
.SH SEE ALSO
.BR vellumo\-designer (1),
.BR pilrc (1),
.BR build\-prc (1),
.BR vmp (5)
.PP
The documents that are named here are installed in \fIshare/doc/vellumo\-designer\fR.
)"_L1;

} // namespace

QByteArray ManualPage()
{
    QString page = u".TH VELLUMO 1 \"%1\" \"Vellumo Designer %2\" \"User Commands\"\n"_s.arg(
        QLatin1StringView(VELLUMO_DATE), QLatin1StringView(VELLUMO_VERSION));
    page += before;
    for (const Command &command : Commands())
        page += OfCommand(command);
    page += ".SH OPTIONS\n"_L1;
    for (const OptionRow &row : OptionRows())
        page += OfOption(row);
    const QString statuses = ExitStatuses().section(u": "_s, 1); // without its own heading
    page += ".SH EXIT STATUS\n"_L1 + Roff(statuses) + after;
    return page.toUtf8();
}

} // namespace vellumo
