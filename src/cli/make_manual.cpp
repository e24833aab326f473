// make-manual FOLDER: writes the manual page of vellumo and what shells complete, while a package
// is built.
#include "cli/manual.h"
#include "platform/files.h"

#include <QDir>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace vellumo;

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("usage: make-manual FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const std::pair<QString, QByteArray> files[] = {{u"vellumo.1"_s, ManualPage()},
                                                    {u"vellumo.bash"_s, BashCompletion()},
                                                    {u"_vellumo"_s, ZshCompletion()},
                                                    {u"vellumo.fish"_s, FishCompletion()}};
    for (const auto &[name, bytes] : files)
        if (const Outcome written = ReplaceFile(folder.filePath(name), bytes); !written) {
            std::fprintf(stderr, "%s\n", Describe(written.error()).toLocal8Bit().constData());
            return 1;
        }
    return 0;
}
