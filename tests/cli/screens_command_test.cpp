#include "vellumo_run.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString tenTypes = DataFile(u"palm/tentypes.prc"_s);
const QString noItems = DataFile(u"projects/edge-noitems.vmp"_s);

class ScreensCommand : public VellumoRun
{
protected:
    ScreensCommand()
    {
        qputenv("PATH", PROGRAMS);
        qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
    }

    ~ScreensCommand() override { qputenv("TMPDIR", m_systemTemporary); }

    /// The names of the databases that a page tells of.
    static QStringList Headings(const QString &page)
    {
        static const QRegularExpression heading(u"<h1>(.*?)</h1>"_s);
        QStringList headings;
        for (const QRegularExpressionMatch &match : heading.globalMatch(page))
            headings += match.captured(1);
        return headings;
    }

    /// A database of which a form ends too early.
    QString DamagedDatabase()
    {
        QString path = InFolder(u"damaged.prc"_s);
        QByteArray bytes = BytesOf(tenTypes);
        const qsizetype entry = bytes.indexOf("tFRM") + 4 + 2;
        bytes[entry + 3] = static_cast<char>(bytes[entry + 3] + 2); // where the first one begins
        WriteBytes(path, bytes);
        return path;
    }

    const QByteArray m_systemTemporary = qgetenv("TMPDIR");
    QTemporaryDir m_temporary;
};

} // namespace

TEST_F(ScreensCommand, DrawsADatabaseByItself)
{
    qputenv("PATH", "");
    EXPECT_EQ(Run({u"screens"_s, tenTypes}), 0);
    EXPECT_EQ(Err(), u""_s);
    EXPECT_EQ(Headings(Out()), QStringList{u"tentypes"_s});
    EXPECT_EQ(Out().count(u"<svg "), 11) << "ten forms, and a list opened";
    EXPECT_EQ(Run({u"screens"_s, u"-"_s}, BytesOf(tenTypes)), 0);
    EXPECT_EQ(Headings(Out()), QStringList{u"tentypes"_s});
}

TEST_F(ScreensCommand, CompilesAProjectAndLeavesNothingOfIt)
{
    const QString page = InFolder(u"page.html"_s);
    EXPECT_EQ(Run({u"screens"_s, goldenSiteVisit, u"-o"_s, page}), 0) << Err().toStdString();
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(Headings(QString::fromUtf8(BytesOf(page))), QStringList{u"SiteVisit"_s});
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList{u"page.html"_s});
    EXPECT_EQ(NamesIn(m_temporary.path()), QStringList());
    EXPECT_EQ(Run({u"screens"_s, u"-"_s}, BytesOf(goldenSiteVisit)), 0);
    EXPECT_EQ(Headings(Out()), QStringList{u"SiteVisit"_s});
}

TEST_F(ScreensCommand, DrawsSeveralOnOnePage)
{
    EXPECT_EQ(Run({u"screens"_s, goldenSiteVisit, tenTypes, goldenNestbox}), 0);
    EXPECT_EQ(Headings(Out()), (QStringList{u"SiteVisit"_s, u"tentypes"_s, u"Nestbox"_s}));
}

TEST_F(ScreensCommand, DrawsTheOthersWhereAnInputIsNone)
{
    const QString none = InFolder(u"none.prc"_s);
    EXPECT_EQ(Run({u"screens"_s, none, tenTypes, noItems}), 3);
    EXPECT_EQ(Headings(Out()), QStringList{u"tentypes"_s});
    EXPECT_TRUE(Err().startsWith(none + u": No such file or directory\n"_s)) << Err().toStdString();
    EXPECT_EQ(Run({u"screens"_s, noItems, u"-o"_s, InFolder(u"page.html"_s)}), 1);
    EXPECT_EQ(NamesIn(m_folder.path()), QStringList()) << "a page of nothing is none";
}

TEST_F(ScreensCommand, TellsOfAFormThatIsDamaged)
{
    const QString damaged = DamagedDatabase();
    EXPECT_EQ(Run({u"screens"_s, damaged}), 1);
    EXPECT_TRUE(Err().startsWith(damaged + u": The resource '"_s)) << Err().toStdString();
    EXPECT_TRUE(Err().contains(u"'tFRM' 1 is damaged: ")) << Err().toStdString();
    EXPECT_TRUE(Out().contains(u"This form is damaged: "));
    EXPECT_EQ(Out().count(u"<article>"), 10) << "the others are drawn";
}

TEST_F(ScreensCommand, SaysWhyAPageCannotBeWritten)
{
    EXPECT_EQ(Run({u"screens"_s, tenTypes, u"-o"_s, InFolder(u"none/page.html"_s)}), 5);
    EXPECT_TRUE(Err().startsWith(InFolder(u"none/page.html"_s) + u": "_s)) << Err().toStdString();
}

TEST_F(ScreensCommand, TellsProgramsInJson)
{
    const QString page = InFolder(u"page.html"_s);
    EXPECT_EQ(Run({u"screens"_s, DamagedDatabase(), u"-o"_s, page, u"--json"_s}), 1);
    ASSERT_GE(Objects().size(), 2);
    EXPECT_EQ(Objects()[0][u"kind"_s], u"finding"_s);
    EXPECT_EQ(Objects()[0][u"code"_s], u"resource-damaged"_s);
    EXPECT_EQ(Objects().last()[u"code"_s], u"screens"_s);
    EXPECT_EQ(Objects().last()[u"file"_s], page);
    EXPECT_EQ(Objects().at(Objects().size() - 2)[u"code"_s], u"drawn"_s);
    EXPECT_EQ(Run({u"screens"_s, tenTypes, u"--json"_s}), 2)
        << "a page and an object would get mixed";
}

TEST_F(ScreensCommand, TellsWhatWasDrawnOnlyWhenThePageIsWritten)
{
    const QString page = InFolder(u"none/page.html"_s), none = InFolder(u"none.prc"_s);
    EXPECT_EQ(Run({u"screens"_s, tenTypes, none, u"-o"_s, page, u"--json"_s}), 5);
    ASSERT_EQ(Objects().size(), 5) << out.str();
    EXPECT_EQ(Objects()[0][u"code"_s], u"unreadable"_s);
    EXPECT_EQ(Objects()[1][u"code"_s], u"not-written"_s);
    EXPECT_EQ(Objects()[2][u"code"_s], u"not-drawn"_s);
    EXPECT_EQ(Objects()[2][u"input"_s], tenTypes);
    EXPECT_EQ(Objects()[2][u"exit"_s], 0);
    EXPECT_EQ(Objects()[3][u"code"_s], u"failed"_s);
    EXPECT_EQ(Objects()[3][u"input"_s], none);
    EXPECT_EQ(Objects()[4], (QJsonObject{{u"kind"_s, u"result"_s},
                                         {u"code"_s, u"failed"_s},
                                         {u"file"_s, page},
                                         {u"exit"_s, 5},
                                         {u"message"_s, u"It failed."_s}}));
}
