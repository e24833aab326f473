#include "model/unreadable_texts.h"

#include "model/form_fields.h"
#include "model/project_reader.h"
#include "model/project_writer.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString bad = u"a]]>b"_s;

Project Sample()
{
    Project project;
    project.TitleList = {u"Age"_s};
    for (const int id : {7, 9, 9})
        project.source.Questions().Append({.Title = u"Age"_s, .Type = u"Text"_s, .Id = id});
    for (const int id : {9, 7, 8})
        project.source.Items().Append({.Id = id, .Item = u"Red"_s});
    return project;
}

QStringList Quotes(const Project &project)
{
    QStringList quotes;
    for (const UnreadableText &text : FindUnreadableTexts(project))
        quotes << Quote(text.place, text.text);
    return quotes;
}

/// Whether what is written of a project can be read.
bool CanBeReopened(const Project &project)
{
    const Result<QByteArray> bytes = WriteProject(project);
    EXPECT_TRUE(bytes);
    return bytes && ReadProject(*bytes);
}

} // namespace

TEST(UnreadableTexts, AreNoneWhereTheFileCanBeReadAgain)
{
    for (const QString &text : {u""_s, u"]]"_s, u"]] >"_s, u"]>"_s, u"]]&gt;"_s, u"<![CDATA["_s,
                                u"]"_s, u"]]\n>"_s, u"[[<"_s}) {
        SCOPED_TRACE(text.toStdString());
        Project project = Sample();
        project.FormName = text;
        EXPECT_TRUE(CanBeReopened(project));
        EXPECT_EQ(Quotes(project), QStringList());
        EXPECT_EQ(UnreadableNotice(project), QString());
    }
}

TEST(UnreadableTexts, AreFoundWhereverTheyStand)
{
    struct Row {
        QString quote;
        std::function<QString &(Project &)> text;
    };
    std::vector<Row> rows = {
        {u"question 2, type"_s,
         [](Project &p) -> QString & { return p.source.Questions().Current().Type; }},
        {u"question 2, title"_s,
         [](Project &p) -> QString & { return p.source.Questions().Current().Title; }},
        {u"question 2, column name"_s,
         [](Project &p) -> QString & { return p.source.Questions().Current().ColumnName; }},
        {u"question 2, question text"_s,
         [](Project &p) -> QString & { return p.source.Questions().Current().Question; }},
        {u"question 1, item"_s,
         [](Project &p) -> QString & { return p.source.Items().Current().Item; }},
        {u"title history"_s, [](Project &p) -> QString & { return p.TitleList.first(); }},
    };
    for (const FormFieldRow &field : formFields)
        rows.push_back({field.name, [&field](Project &p) -> QString & { return p.*field.text; }});
    for (const Row &row : rows) {
        for (const QString &text : {bad, u"]]>"_s, u"  ]]>  "_s, u"]]]>"_s, u"<![CDATA[a]]>"_s}) {
            SCOPED_TRACE((row.quote + u": "_s + text).toStdString());
            Project project = Sample();
            project.source.Questions().SetPosition(1);
            project.source.Items().SetPosition(1);
            row.text(project) = text;
            EXPECT_FALSE(CanBeReopened(project));
            EXPECT_EQ(Quotes(project), QStringList{row.quote + u": \"%1\""_s.arg(text)});
        }
    }
}

TEST(UnreadableTexts, AreFoundAlsoWhereTheFileWouldHoldAnotherText)
{
    Project project;
    project.FormName = u"a]]><![CDATA[b"_s;
    EXPECT_TRUE(CanBeReopened(project));
    EXPECT_EQ(FindUnreadableTexts(project).size(), 1u);
}

TEST(UnreadableTexts, ItemsGoByTheFirstQuestionWithTheirId)
{
    Project project = Sample();
    for (int i = 0; i < 3; ++i) {
        project.source.Items().SetPosition(i);
        project.source.Items().Current().Item = bad;
    }
    EXPECT_EQ(Quotes(project),
              (QStringList{u"question 2, item: \"a]]>b\""_s, u"question 1, item: \"a]]>b\""_s,
                           u"item: \"a]]>b\""_s}));
}

TEST(UnreadableTexts, AreShownWholeUpToSixtyCharacters)
{
    const auto shown = [](const QString &text) {
        Project project;
        project.Description = text;
        return UnreadableNotice(project).section(u'"', -2, -2);
    };
    const QString sixty = u"]]>"_s + QString(57, u'x');
    EXPECT_EQ(shown(sixty), sixty);
    EXPECT_EQ(shown(sixty + u'x'), sixty + u'\u2026');
}

TEST(UnreadableTexts, TheNoticeNamesThem)
{
    const QString begin =
        u"The project is saved, but its file cannot be opened again: \"]]>\" ends "
        "a text too early. Please change what has it, and save again:\n"_s;
    Project project = Sample();
    project.FormVersion = u"1\n]]>"_s;
    project.Description = QString(100, u'x') + u"]]>"_s + QString(100, u'y');
    project.FormPath = u"]]>"_s + QString(100, u'z');
    EXPECT_EQ(UnreadableNotice(project),
              begin + u"\nform version: \"1 ]]>\"\ndescription: \"\u2026"_s + QString(57, u'x') +
                  u"]]>\"\ndata folder: \"]]>"_s + QString(57, u'z') + u"\u2026\""_s);

    project = Sample();
    project.TitleList = QStringList(12, bad);
    EXPECT_EQ(UnreadableNotice(project),
              begin + u"\ntitle history: \"a]]>b\""_s.repeated(10) + u"\nand 2 more"_s);
}
