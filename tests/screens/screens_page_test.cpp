#include "screens/screens_page.h"

#include "screens/databases.h"
#include "screens/shapes.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QString PageOf(const QList<DatabaseScreens> &databases)
{
    return QString::fromUtf8(ScreensPage(databases));
}

DatabaseScreens ScreensOfBytes(const QByteArray &bytes)
{
    return ScreensOf(Read(bytes));
}

/// The texts of all elements of a name.
QStringList TextsOf(const QString &page, QLatin1StringView element)
{
    QStringList texts;
    QXmlStreamReader reader(page);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == element)
            texts += reader.readElementText(QXmlStreamReader::IncludeChildElements);
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return texts;
}

} // namespace

TEST(ScreensPage, TellsOfTheDatabaseAndEachOfItsForms)
{
    DatabaseScreens screens = ScreensOfBytes(Golden(u"tentypes"_s));
    screens.created = QDateTime(QDate(2026, 3, 1), QTime(9, 5), Qt::UTC);
    const QString page = PageOf({screens});
    EXPECT_TRUE(page.startsWith(u"<!DOCTYPE html>\n<html lang=\"en\">"));
    EXPECT_TRUE(page.endsWith(u"</html>\n"));
    EXPECT_EQ(TextsOf(page, "title"_L1).value(0), u"Screens of tentypes"_s);
    EXPECT_EQ(TextsOf(page, "h1"_L1), QStringList{u"tentypes"_s});
    EXPECT_EQ(TextsOf(page, "p"_L1),
              (QStringList{u"Version 2.1 · 10 screens · made 2026-03-01 09:05"_s,
                           u"Every kind of question once"_s}));
    EXPECT_EQ(TextsOf(page, "h2"_L1).first(3),
              (QStringList{u"1. Birds"_s, u"2. Wind"_s, u"3. Ring"_s}));
    EXPECT_EQ(TextsOf(page, "dl"_L1).value(1),
              u"QuestionHow strong is the wind?TypePulldown ListColumnWIND"
              "Items (4)CalmBreezeStrong windStorm"_s);
}

TEST(ScreensPage, IsOneFileThatRunsNothing)
{
    const QString page = PageOf({ScreensOfBytes(Golden(u"tentypes"_s))});
    for (const QString &word : {u"<script"_s, u"http:"_s, u"https:"_s, u"url("_s, u"@import"_s,
                                u"<link"_s, u"src="_s, u"@font-face"_s})
        EXPECT_FALSE(page.contains(word)) << word.toStdString();
    EXPECT_TRUE(page.contains(u"content=\"default-src 'none'; style-src 'unsafe-inline'\""));
    EXPECT_TRUE(page.contains(u"@media print")) << "the style sheet is in it";
}

TEST(ScreensPage, TextsAreNeverMarkup)
{
    const QString foreign = u"<b>&amp; 'one'</b><script>"_s;
    const QString quoted = u"\"two\" "_s + foreign;
    Project project =
        OneQuestionProject(foreign, {0, foreign, quoted, u"Pulldown List"_s, foreign}, {foreign});
    project.FormName = u"<b>&amp;"_s;
    project.FormVersion = foreign;
    project.Description = quoted;
    const QString page = PageOf({ScreensOfBytes(DatabaseOf(project))});
    EXPECT_FALSE(page.contains(u"<b>"));
    EXPECT_FALSE(page.contains(u"<script"));
    EXPECT_EQ(TextsOf(page, "h1"_L1), QStringList{u"<b>&amp;"_s});
    EXPECT_EQ(TextsOf(page, "p"_L1).value(1), quoted);
    EXPECT_EQ(TextsOf(page, "h2"_L1), QStringList{u"1. "_s + foreign});
    EXPECT_EQ(TextsOf(page, "dd"_L1), (QStringList{quoted, u"Pulldown List"_s, foreign, foreign}));
    EXPECT_TRUE(TextsOf(page, "text"_L1).contains(foreign)) << "in the drawing, too";
}

TEST(ScreensPage, ControlCharactersAreShownAsSuch)
{
    const Project project = OneQuestionProject(
        u"a"_s, {0, u"a\\001b"_s, u"one\\ntwo\\x1bthree"_s, u"Pulldown List"_s, u"C\\tD"_s},
        {u"i\\x7f"_s});
    const QString page = PageOf({ScreensOfBytes(DatabaseOf(project))});
    EXPECT_EQ(TextsOf(page, "h2"_L1), QStringList{u"1. a\uFFFDb"_s});
    EXPECT_EQ(TextsOf(page, "dd"_L1), (QStringList{u"onetwo\uFFFDthree"_s, u"Pulldown List"_s,
                                                   u"C\uFFFDD"_s, u"i\uFFFD"_s}));
    EXPECT_TRUE(page.contains(u">one<br/>two\uFFFDthree<")) << "a line feed is one on the handheld";
}

TEST(ScreensPage, EveryDrawingHasWordsOfItsOwn)
{
    const DatabaseScreens screens = ScreensOfBytes(Golden(u"pulldown"_s));
    const QString page = PageOf({screens, screens});
    EXPECT_EQ(ShapesOf(page.toUtf8()).filter(u"svg "_s),
              (QStringList{u"svg d1-q1-title"_s, u"svg d1-q1-list-title"_s, u"svg d2-q1-title"_s,
                           u"svg d2-q1-list-title"_s}));
    EXPECT_EQ(page.count(u" role=\"img\""), 4);
    EXPECT_EQ(page.count(u"id=\"d1-q1-title\""), 1);
    EXPECT_TRUE(
        page.contains(u"<title id=\"d1-q1-list-title\">Screen 1: Colour, the list opened<"));
    EXPECT_TRUE(page.contains(u"<desc id=\"d1-q1-list-text\">Red, Green, Blue<"));
}

TEST(ScreensPage, SeveralDatabasesHaveAPartEach)
{
    const QString page =
        PageOf({ScreensOfBytes(Golden(u"text"_s)), ScreensOfBytes(Golden(u"notes"_s))});
    EXPECT_EQ(TextsOf(page, "title"_L1).value(0), u"Screens of text, notes"_s);
    EXPECT_EQ(TextsOf(page, "h1"_L1), (QStringList{u"text"_s, u"notes"_s}));
    EXPECT_EQ(page.count(u"<section>"), 2);
}

TEST(ScreensPage, AFormThatCannotBeDecodedIsTold)
{
    const QByteArray bytes = WithData(Golden(u"tentypes"_s), "tFRM", 4,
                                      [](const QByteArray &form) { return form.chopped(1); });
    const QString page = PageOf({ScreensOfBytes(bytes)});
    EXPECT_EQ(page.count(u"<article>"), 10);
    EXPECT_EQ(page.count(u"<svg "), 10) << "nine screens, one of them with a list";
    EXPECT_EQ(page.count(u"This form is damaged: "), 1);
    EXPECT_EQ(page.count(u"<p class=\"fault\">The resource 'tFRM' 4 is damaged: "), 1);
}

TEST(ScreensPage, WhatDoesNotFitIsToldBesideItsScreen)
{
    const Project project = OneQuestionProject(
        u"a"_s, {0, u"T"_s, u"Where was it seen for the first time?"_s, u"Text"_s, u"T"_s});
    const QString page = PageOf({ScreensOfBytes(DatabaseOf(project))});
    EXPECT_EQ(page.count(u"<p class=\"misfit\">Question: it is "), 1);
    EXPECT_EQ(page.count(u"<title>meets button 97</title>"), 0) << "it wraps before that";
}

TEST(ScreensPage, WhatTheHandheldLacksOfTheDescriptionIsToldInTheHeading)
{
    Project project = OneQuestionProject(u"a"_s, {0, u"T"_s, u"?"_s, u"Text"_s, u"T"_s});
    project.Description = u"Caf\u00e9"_s;
    EXPECT_EQ(PageOf({ScreensOfBytes(DatabaseOf(project))}).count(u"class=\"misfit\""), 0);
    project.Description = u"Brno, \u017eenich"_s;
    EXPECT_EQ(TextsOf(PageOf({ScreensOfBytes(DatabaseOf(project))}), "p"_L1).last(2),
              (QStringList{u"Brno, \u017eenich"_s,
                           u"Description: the handheld has no Z or z with a caron and shows "
                           "another sign or none."_s}));
}

TEST(ScreensPage, OnPaperTheFirstOfManyAreToldAndTheOthersCounted)
{
    const auto pageOf = [](int items, int misfits) {
        Screen screen = {.number = 1, .form = Form()};
        for (int i = 1; i <= items; ++i)
            screen.items += u"item %1"_s.arg(i);
        for (int i = 1; i <= misfits; ++i)
            screen.misfits += u"misfit %1"_s.arg(i);
        return PageOf({{.name = u"a"_s, .screens = {screen}}});
    };
    EXPECT_EQ(pageOf(8, 3).count(u"printed\">"), 0);
    const QString more = pageOf(240, 100);
    EXPECT_TRUE(more.contains(u"<li>item 8</li><li class=\"unprinted\">item 9</li>"));
    EXPECT_TRUE(more.contains(u"<p class=\"printed\">... and 232 more</p>"));
    EXPECT_TRUE(more.contains(u"<p class=\"misfit\">misfit 3</p>"
                              "<p class=\"misfit unprinted\">misfit 4</p>"));
    EXPECT_TRUE(more.contains(u"<p class=\"misfit printed\">... and 97 more</p>"));
    EXPECT_EQ(TextsOf(more, "li"_L1).size(), 240) << "a window shows all of them";
}

TEST(ScreensPage, ADatabaseOfAnotherKindIsToldAsWhatItIs)
{
    const QList<PalmResource> resources = Read(Golden(u"text"_s)).resources;
    QList<PalmResource> few;
    for (const PalmResource &resource : resources)
        if (resource.type == "tFRM")
            few.append(resource);
    const DatabaseScreens screens = ScreensOfBytes(WithResources(Golden(u"text"_s), few));
    EXPECT_EQ(screens.name, u"text"_s) << "that of the database";
    EXPECT_FALSE(screens.findings.isEmpty());
    ASSERT_EQ(screens.screens.size(), 1);
    EXPECT_EQ(screens.screens[0].type, u""_s);
    EXPECT_EQ(TextsOf(PageOf({screens}), "h2"_L1), QStringList{u"1. Finder"_s});
}

TEST(ScreensPage, IsWellFormedWhateverAByteOfAFormBecomes)
{
    const PalmDatabase database = Read(Golden(u"pulldown"_s));
    const QByteArray form = DataOf(database, "tFRM", 1);
    int drawn = 0;
    for (qsizetype i = 0; i < form.size(); ++i) {
        for (const char byte : {'\0', '\x1B', '<', '\xFF'}) {
            QByteArray changed = form;
            changed[i] = byte;
            const PalmDatabase damaged = {.name = "a", .resources = {{"tFRM", 1, changed}}};
            const QString page = PageOf({ScreensOf(damaged)});
            drawn += int(page.contains(u"<svg "));
            ASSERT_EQ(TextsOf(page, "h2"_L1).size(), 1) << i;
        }
    }
    EXPECT_GT(drawn, 100) << "places and texts may be anything";
}

TEST(ScreensPage, IsWellFormedWhateverTheGoldenDatabasesHold)
{
    for (const QString &name : GoldenNames()) {
        SCOPED_TRACE(name.toStdString());
        const DatabaseScreens screens = ScreensOfBytes(Golden(name));
        EXPECT_EQ(TextsOf(PageOf({screens}), "h2"_L1).size(), screens.screens.size());
    }
}
