// Opening a compiled help file whose topics are stored with the folder in which its compiler ran.
// The arguments are the numbers of topics and of folders in front of each; "per_item" is the time
// that one topic takes.
#include "help/compiler/archive_writer.h"
#include "help/little_endian.h"
#include "help/reader/help_file.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QByteArray HelpOfTopics(int count, int folders)
{
    const QByteArray folder = QByteArray("a/").repeated(folders);
    QByteArray strings(1, '\0'), pairs, length;
    std::map<QByteArray, QByteArray> objects;
    for (int i = 0; i < count; ++i) {
        const QByteArray page = QByteArray::number(i) + ".html";
        objects['/' + page] = "";
        AppendLittle(pairs, quint32(i));
        AppendLittle(pairs, quint32(strings.size()));
        strings += folder + page + '\0';
    }
    AppendLittle(length, quint32(pairs.size()));
    objects["/#SYSTEM"] = QByteArray("\x03\0\0\0\x02\0\x07\0", 8) + "0.html" + '\0';
    objects["/#STRINGS"] = strings;
    objects["/#IVB"] = length + pairs;
    return WriteArchive(objects);
}

void OpenHelp(benchmark::State &state)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"topics.chm"_s));
    const int topics = static_cast<int>(state.range(0));
    const QByteArray bytes = HelpOfTopics(topics, static_cast<int>(state.range(1)));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return state.SkipWithError("no help file");
    file.close();
    for ([[maybe_unused]] auto _ : state) {
        const auto help = HelpFile::Open(file.fileName());
        if (!help || help->PageOf(1) != u"1.html"_s) {
            state.SkipWithError("not read");
            break;
        }
    }
    using benchmark::Counter;
    state.counters["per_item"] =
        Counter(topics, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

BENCHMARK(OpenHelp)->ArgsProduct({{500, 4000, 16000}, {0, 240}});

} // namespace

BENCHMARK_MAIN();
