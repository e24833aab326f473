// sample write KIND FILE   writes a sample project: mixed, largest, or a number of items
// sample load FILE         reads a project and ends, to be timed as a whole
#include "bench/sample_projects.h"
#include "model/project_file.h"

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

Outcome Write(const QString &kind, const QString &path)
{
    const Project project = kind == "mixed"_L1     ? MixedProject(128)
                            : kind == "largest"_L1 ? LargestProject()
                                                   : ProjectOfItems(kind.toInt());
    return SaveProject(project, path);
}

Outcome Load(const QString &path)
{
    const Result<Project> project = LoadProject(path);
    return project ? done : Outcome(project.error());
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    Outcome outcome = Error{u"Usage: sample write mixed|largest|ITEMS FILE | sample load FILE"_s};
    if (words.size() == 3 && words[0] == "write"_L1)
        outcome = Write(words[1], words[2]);
    else if (words.size() == 2 && words[0] == "load"_L1)
        outcome = Load(words[1]);
    if (!outcome)
        std::fprintf(stderr, "%s\n", qPrintable(Describe(outcome.error())));
    return outcome ? 0 : 1;
}
