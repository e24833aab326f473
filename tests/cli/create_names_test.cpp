#include "create_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST_F(CreateCommand, TakesOddNamesAsNames)
{
    for (const QString &name : {u"a;touch"_s, u"$(id)"_s, u"-x"_s, u"--help"_s, u"`id`"_s,
                                u"caf\u00E9"_s, u"%1%2"_s, u"'"_s, u"&"_s, u"#!"_s, u"{~}"_s,
                                u"a\tb"_s, u"\u20AC"_s, u"[x]^=+,."_s, QString(24, u'\u00FF')}) {
        SCOPED_TRACE(name.toStdString());
        const QString project = InFolder(u"odd.vmp"_s);
        EXPECT_EQ(Create({ProjectNamed(name, project)}), 0) << Err().toStdString();
        EXPECT_EQ(Made(), QStringList{name + u".prc"_s});
        EXPECT_TRUE(
            BytesOf(InFolder(u"out/"_s + name + u".prc"_s)).startsWith(InCodePage(name) + '\0'))
            << "the name is in the handheld's code page";
        QFile::remove(InFolder(u"out/"_s + name + u".prc"_s));
    }
}

TEST_F(CreateCommand, TakesEveryCharacterThatTheRulesAllowInAName)
{
    const QByteArray refused = " \"*/:<>?\\|";
    QStringList projects;
    for (int byte = 0x20; byte < 0x100; ++byte) {
        if (refused.contains(static_cast<char>(byte)))
            continue;
        const QString name = FromWindows1252(QByteArray(1, static_cast<char>(byte))) + u"name"_s;
        projects.append(ProjectNamed(name, InFolder(u"%1.vmp"_s.arg(byte))));
    }
    EXPECT_EQ(Create(projects), 0) << Err().toStdString();
    EXPECT_EQ(Err(), u""_s);
    EXPECT_EQ(Out().count(u'\n'), projects.size());
    EXPECT_EQ(Made().size(), projects.size());
}

TEST_F(CreateCommand, DoesNotCreateWhatFailsTheReview)
{
    const QString notAFileName = u"\"\\/:*?<>|are not allowed for file name"_s;
    const struct {
        QString name, message;
    } rows[] = {
        {u"../x"_s, notAFileName},
        {u"a/b"_s, notAFileName},
        {u"a b"_s, u"Spaces in the Vellsheet name are not allowed."_s},
        {u"  "_s, u"Please enter a name for your Vellsheet."_s},
        {QString(25, u'x'), u"Please keep the Vellsheet name under 24 characters in length."_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        const QString project = ProjectNamed(row.name, InFolder(u"odd.vmp"_s));
        EXPECT_EQ(Create({project}), 1);
        EXPECT_EQ(Out(), u""_s);
        EXPECT_EQ(Err(), project + u": Step1\t\t"_s + row.message + u'\n');
        EXPECT_EQ(Made(), QStringList());
    }
    EXPECT_EQ(NamesIn(m_folder.path()), (QStringList{u"odd.vmp"_s, u"out"_s, u"tools"_s}));
}

TEST_F(CreateCommand, ANameOfDotsCannotLeadElsewhere)
{
    EXPECT_EQ(Create({ProjectNamed(u".."_s, InFolder(u"odd.vmp"_s))}), 1);
    EXPECT_EQ(Made(), QStringList());
}

TEST_F(CreateCommand, OneProjectDoesNotTakeThePlaceOfAnother)
{
    const QString namesake = ProjectNamed(u"Nestbox"_s, InFolder(u"namesake.vmp"_s));
    EXPECT_EQ(Create({fittingNestbox, namesake}), 5);
    EXPECT_EQ(Out(), InFolder(u"out/Nestbox.prc\n"_s));
    EXPECT_EQ(Err(), namesake + u": its database would take the place of that of "_s +
                         fittingNestbox + u'\n');
}
