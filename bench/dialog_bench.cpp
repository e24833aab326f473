// What a person waits for in the help and in the windows over the main one.
#include "bench/sample_projects.h"
#include "editing/property_rules.h"
#include "help/help_topics.h"
#include "ui/about/help_window.h"
#include "ui/about/myHelp.h"
#include "ui/questions/item_list_editor.h"

#include <QApplication>
#include <QListView>
#include <QPushButton>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// From the click on a link to the page, painted in a new window.
void HelpPage(benchmark::State &state)
{
    Environment environment;
    environment.helpFile = QStringLiteral(HELP_FILE);
    myHelp help(environment);
    QWidget asker;
    asker.show();
    for ([[maybe_unused]] auto _ : state) {
        help.ShowHelp(HH_HELP_CONTEXT, HelpContext::questionWizard, &asker);
        auto *window = asker.findChild<HelpWindow *>();
        if (!window) {
            state.SkipWithError("no help");
            break;
        }
        window->repaint();

        state.PauseTiming();
        help.CloseWindows();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
}

QStringList Numbered(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items += QString::number(i);
    return items;
}

/// Sorts a list of items, moves the one in the middle and removes all. The argument is their
/// number.
void EditItems(benchmark::State &state)
{
    const QStringList items = Numbered(static_cast<int>(state.range(0)));
    ItemListEditor editor;
    editor.Configure(wizardItemList, {u"list"_s, u"add"_s, u"remove"_s, u"up"_s, u"down"_s});
    editor.SetType(u"Pulldown List"_s);
    editor.show();
    const auto click = [&editor](const char *button) {
        editor.findChild<QPushButton *>(QLatin1StringView(button))->click();
        QApplication::processEvents();
    };
    for ([[maybe_unused]] auto _ : state) {
        editor.SetItems(items);
        click("cmd_sort");
        editor.List()->setCurrentIndex(
            editor.List()->model()->index(static_cast<int>(items.size()) / 2, 0));
        click("up");
        editor.List()->selectAll();
        click("remove");
        if (!editor.Items().isEmpty())
            state.SkipWithError("not removed");
    }
}

/// OK in the properties of the last question of the largest project.
void ReplaceQuestion(benchmark::State &state)
{
    Project project = LargestProject();
    project.source.MoveLast();
    const Question edited = {.title = u"Kind"_s,
                             .question = u"Which kind?"_s,
                             .type = u"Pulldown List"_s,
                             .columnName = u"Kind"_s,
                             .items = Numbered(255)};
    for ([[maybe_unused]] auto _ : state) {
        if (!ObjectionsTo(edited, project.source).isEmpty())
            state.SkipWithError("refused");
        ReplaceCurrentQuestion(project.source, edited);
    }
}

BENCHMARK(HelpPage)->Unit(benchmark::kMillisecond);
BENCHMARK(EditItems)->Arg(255)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(ReplaceQuestion)->Unit(benchmark::kMillisecond);

} // namespace
