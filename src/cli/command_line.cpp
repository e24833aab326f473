#include "cli/command_line.h"

#include <QCommandLineParser>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString outputOption = u"o"_s;
const QString identifierOption = u"guid"_s;

} // namespace

Result<CommandLine> ParseCommandLine(const QStringList &words, const AllowedOptions &allowed)
{
    QCommandLineParser parser;
    parser.addOption({{outputOption, u"output"_s}, {}, u"FILE"_s});
    if (allowed.identifier)
        parser.addOption({identifierOption, {}, u"HEX32"_s});
    if (!parser.parse(QStringList{u"vellumo"_s} + words))
        return Error{parser.errorText()};

    const CommandLine line = {
        .projects = parser.positionalArguments(),
        .output = parser.value(outputOption),
        .identifier = allowed.identifier ? parser.value(identifierOption).toUpper() : QString(),
    };
    if (line.projects.isEmpty())
        return Error{u"Which project? Please name a .vmp file."_s};
    if (line.projects.size() > 1 && !allowed.severalProjects)
        return Error{u"This command takes one project only."_s};
    if (parser.isSet(outputOption) && line.output.isEmpty())
        return Error{u"The name after -o is empty."_s};
    static const QRegularExpression digits(u"^[0-9A-F]{32}$"_s);
    if (allowed.identifier && parser.isSet(identifierOption) &&
        !digits.match(line.identifier).hasMatch())
        return Error{u"The identifier of --guid must be 32 hexadecimal digits."_s};
    return line;
}
