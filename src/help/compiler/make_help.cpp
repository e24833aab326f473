#include "help/compiler/make_help.h"

#include "help/compiler/help_compiler.h"
#include "help/compiler/link_check.h"

#include <QFile>
#include <QSaveFile>

#include <ostream>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

Result<HelpSource> ReadSource(const QString &folder, const QStringList &names)
{
    HelpSource source{helpTitle, helpDefaultPage, helpContents, helpTopics, {}};
    for (const QString &name : names) {
        QFile file(folder + u'/' + name);
        if (!file.open(QIODevice::ReadOnly))
            return Error{file.errorString(), file.fileName()};
        source.files[name] = file.readAll();
    }
    return source;
}

Outcome Write(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return Error{file.errorString(), path};
    return done;
}

Outcome Make(const QStringList &arguments)
{
    if (arguments.size() < 3)
        return Error{u"Usage: make-help OUTPUT FOLDER NAME..."_s};
    const auto source = ReadSource(arguments[1], arguments.sliced(2));
    if (!source)
        return source.error();
    if (const QStringList broken = FindBrokenLinks(source->files); !broken.isEmpty())
        return Error{u"These links lead nowhere:\n"_s + broken.join(u'\n')};
    const auto help = CompileHelp(*source);
    if (!help)
        return help.error();
    return Write(arguments[0], *help);
}

} // namespace

int MakeHelp(const QStringList &arguments, std::ostream &err)
{
    const Outcome made = Make(arguments);
    if (made)
        return 0;
    err << "make-help: " << Describe(made.error()).toStdString() << '\n';
    return 1;
}

} // namespace vellumo
