#include "ui/main/file_questions.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Drags what names these files onto a control and lets it go; whether it was taken there.
bool Drop(QWidget *target, const QList<QUrl> &urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &drop);
    QApplication::processEvents();
    return drop.isAccepted();
}

const QList<QUrl> project = {QUrl::fromLocalFile(sample)};

TEST(DroppedProject, IsOpenedWhereverItFalls)
{
    for (const char *place : {"", "txtAppName", "cmd1_Next"}) {
        const Designer designer;
        const PromptScript prompts;
        auto *target =
            *place ? designer.Find<QWidget>(place) : const_cast<appInfoForm *>(&designer.window);
        EXPECT_TRUE(Drop(target, project)) << place;
        EXPECT_EQ(designer.window.document().path(), sample) << place;
        EXPECT_EQ(designer.project().FormName, u"SiteVisit"_s) << place;
        EXPECT_TRUE(prompts.boxes().empty());
    }
}

TEST(DroppedProject, AsksFirstAboutUnsavedWork)
{
    for (const QString &answer : {u"Cancel"_s, u"No"_s}) {
        const Designer designer;
        MakeChanged(designer);
        const PromptScript prompts({answer});
        EXPECT_TRUE(Drop(designer.Find<QWidget>("central"), project));
        EXPECT_EQ(prompts.texts(), QStringList{saveQuestion});
        EXPECT_EQ(designer.window.document().path(), answer == u"No"_s ? sample : QString());
    }
}

TEST(DroppedProject, IsOneFileOfThatName)
{
    const Designer designer;
    auto *window = const_cast<appInfoForm *>(&designer.window);
    EXPECT_FALSE(Drop(window, {QUrl::fromLocalFile(u"/tmp/a.txt"_s)}));
    EXPECT_FALSE(Drop(window, {QUrl(u"https://vellumo.example/a.vmp"_s)}));
    EXPECT_FALSE(Drop(window, project + project));
    EXPECT_EQ(designer.window.document().path(), QString());
}

} // namespace
