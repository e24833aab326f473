// The stages from a project's file to its database, each alone and in memory. The argument of a
// stage is the number of questions, 0 the largest project; that of an item benchmark the number of
// items, and its "items" the time that one item takes.
#include "bench/sample_projects.h"
#include "handheld/misfits.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "palmgen/script_generator.h"
#include "palmtools/build_prc/database_builder.h"
#include "palmtools/common/database.h"
#include "palmtools/pilrc/compiler.h"

#include <benchmark/benchmark.h>

using namespace vellumo;

namespace {

using MakeProject = Project (*)(int size);

Project OfQuestions(int questions)
{
    return questions == 0 ? LargestProject() : MixedProject(questions);
}

QByteArray FileOf(const Project &project)
{
    return *WriteProject(project);
}

QByteArray ScriptOf(const Project &project)
{
    return GenerateScript(project, u"0123456789ABCDEF0123456789ABCDEF").bytes;
}

std::string_view ViewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<size_t>(bytes.size())};
}

void CountItems(benchmark::State &state, const Project &project)
{
    using benchmark::Counter;
    state.counters["per_item"] = Counter(static_cast<double>(project.source.Items().Count()),
                                         Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void Load(benchmark::State &state, MakeProject make)
{
    const Project project = make(static_cast<int>(state.range(0)));
    const QByteArray bytes = FileOf(project);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ReadProject(bytes));
    CountItems(state, project);
}

void Save(benchmark::State &state, MakeProject make)
{
    const Project project = make(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(WriteProject(project));
    CountItems(state, project);
}

void Fit(benchmark::State &state, MakeProject make)
{
    const Project project = make(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(FindMisfits(project));
    CountItems(state, project);
}

void Script(benchmark::State &state, MakeProject make)
{
    const Project project = make(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(ScriptOf(project));
    CountItems(state, project);
}

void Compile(benchmark::State &state, MakeProject make)
{
    const Project project = make(static_cast<int>(state.range(0)));
    const QByteArray script = ScriptOf(project);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(palmtools::CompileScript(ViewOf(script)));
    CountItems(state, project);
}

void Package(benchmark::State &state, MakeProject make)
{
    const Project project = make(static_cast<int>(state.range(0)));
    const auto compiled = palmtools::CompileScript(ViewOf(ScriptOf(project)));
    const palmtools::DatabaseHeader header = {.name = "sample", .hidden = true};
    for ([[maybe_unused]] auto _ : state) {
        const auto sorted = palmtools::Sorted(palmtools::ViewsOf(compiled.resources));
        benchmark::DoNotOptimize(palmtools::EncodeDatabase(header, *sorted));
    }
    CountItems(state, project);
}

#define VELLUMO_STAGE(stage)                                                                       \
    BENCHMARK_CAPTURE(stage, questions, OfQuestions)->Arg(1)->Arg(16)->Arg(128)->Arg(0);           \
    BENCHMARK_CAPTURE(stage, items, ProjectOfItems)->Arg(1000)->Arg(32000)

VELLUMO_STAGE(Load);
VELLUMO_STAGE(Save);
VELLUMO_STAGE(Fit);
BENCHMARK_CAPTURE(Fit, wide, WideProjectOfItems)->Arg(1000)->Arg(32000);
VELLUMO_STAGE(Script);
VELLUMO_STAGE(Compile);
VELLUMO_STAGE(Package);

} // namespace

BENCHMARK_MAIN();
