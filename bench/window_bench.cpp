// What a person waits for at the window, until it is painted again. The first argument is the
// number of questions, the second that of the items of each.
#include "bench/sample_projects.h"
#include "editing/question_list.h"
#include "model/project_file.h"
#include "ui/common/environment.h"
#include "ui/main/appInfoForm.h"
#include "ui/questions/step_questions.h"
#include "validation/project_review.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace vellumo;

namespace {

Project OfLists(int questions, int items)
{
    Project project;
    for (int n = 1; n <= questions; ++n) {
        const int id = project.source.IssueId();
        const QString name = QString::number(n);
        project.source.Questions().Append({n, name, name, QStringLiteral("Checkboxes"), name, id});
        for (int item = 0; item < items; ++item)
            project.source.Items().Append({id, QString::number(item)});
    }
    project.source.MoveFirst();
    return project;
}

/// Step 2 on screen.
struct Desk {
    explicit Desk(const benchmark::State &state)
    {
        document.Replace(
            OfLists(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))), {});
        step.resize(800, 600);
        step.LayOutIfLargeEnough();
        step.show();
        step.Enter();
        QApplication::processEvents();
    }

    void Click(const char *button)
    {
        step.findChild<QAbstractButton *>(QString::fromLatin1(button))->click();
        QApplication::processEvents();
    }

    ProjectDocument document;
    StepQuestions step{document};
};

void Move(benchmark::State &state)
{
    Desk desk(state);
    bool down = true;
    for ([[maybe_unused]] auto _ : state) {
        desk.Click(down ? "cmdDown" : "cmdUp");
        down = !down;
    }
}

void Duplicate(benchmark::State &state)
{
    Desk desk(state);
    for ([[maybe_unused]] auto _ : state) {
        if (!desk.document.ChangeQuestions(DuplicateQuestion))
            state.SkipWithError("not duplicated");
        desk.step.Enter();
        QApplication::processEvents();

        state.PauseTiming();
        desk.document.source().MoveLast();
        desk.document.ChangeQuestions(RemoveQuestion);
        desk.document.source().MoveFirst();
        state.ResumeTiming();
    }
}

void RefreshPreview(benchmark::State &state)
{
    Desk desk(state);
    for ([[maybe_unused]] auto _ : state) {
        desk.step.Enter();
        QApplication::processEvents();
    }
}

void RefreshGrid(benchmark::State &state)
{
    Desk desk(state);
    for ([[maybe_unused]] auto _ : state) {
        desk.document.ChangeQuestions([](clsDataSource &) {});
        QApplication::processEvents();
    }
}

QString LargestFile(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("largest.vmp"));
    return SaveProject(LargestProject(), path) ? path : QString();
}

void LoadAndReview(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = LargestFile(folder);
    for ([[maybe_unused]] auto _ : state) {
        Result<Project> project = LoadProject(path);
        if (!project)
            return state.SkipWithError("not loaded");
        benchmark::DoNotOptimize(ReviewProject(*project));
    }
}

void OpenInWindow(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = LargestFile(folder);
    for ([[maybe_unused]] auto _ : state) {
        appInfoForm window{Environment()};
        window.OpenProject(path);
        window.FinishSetUp();
        window.show();
        QApplication::processEvents();
    }
}

void Sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({1, 255})->Args({127, 255})->Unit(benchmark::kMicrosecond);
}

BENCHMARK(Move)->Apply(Sizes);
BENCHMARK(Duplicate)->Apply(Sizes);
BENCHMARK(RefreshPreview)->Apply(Sizes);
BENCHMARK(RefreshGrid)->Apply(Sizes);
BENCHMARK(LoadAndReview)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenInWindow)->Unit(benchmark::kMillisecond);

} // namespace
