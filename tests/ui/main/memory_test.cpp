// What is done again and again leaves nothing behind.
#include "support/print.h"
#include "ui/questions/propertyForm.h"
#include "ui/support/designer.h"

#include <QComboBox>
#include <QTableView>

#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr int often = 10'000, paintedEvery = 20;

/// The bytes by which the heap grows while something is done often, when it was done as often
/// before and all caches are full.
template <typename Action> qint64 Growth(const Action &act)
{
    const auto doOften = [&act] {
        for (int i = 0; i < often; ++i) {
            act(i);
            if (i % paintedEvery == 0)
                QApplication::processEvents();
        }
        return static_cast<qint64>(mallinfo2().uordblks);
    };
    const qint64 before = doOften();
    return doOften() - before;
}

/// Less than a byte for each time.
constexpr qint64 nothing = often - 1;

TEST(Memory, IsNotTakenByRefreshesOfThePreview)
{
    Designer designer(sample);
    auto &document = const_cast<ProjectDocument &>(designer.window.document());
    designer.ClickTab(2);
    auto *grid = designer.Find<QTableView>("DataGrid1");
    const qint64 grown = Growth([&](int i) {
        document.source().SetPosition(i % document.source().QuestionCount());
        QTest::sendKeyEvent(QTest::Release, grid, Qt::Key_Up, QString(), Qt::NoModifier);
    });
    EXPECT_LE(grown, nothing);
}

TEST(Memory, IsNotTakenByChoicesOfAType)
{
    Designer designer(sample);
    auto &document = const_cast<ProjectDocument &>(designer.window.document());
    document.source().SetPosition(2);
    propertyForm properties(document, nullptr);
    properties.show();
    auto *types = properties.findChild<QComboBox *>(u"cboType"_s);
    const qint64 grown = Growth([&](int i) {
        types->setCurrentIndex(i % types->count());
        emit types->activated(types->currentIndex());
    });
    EXPECT_LE(grown, nothing);
}

} // namespace
