#include "vellumo_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

class ExportCommand : public VellumoRun
{
protected:
    const QString m_workbook = InFolder(u"form.xlsx"_s);

    int Export(const QStringList &words)
    {
        return Run(QStringList{u"export"_s, u"--xlsform"_s, u"-o"_s, m_workbook} + words);
    }
};

TEST_F(ExportCommand, AsksForTheKindOfFile)
{
    EXPECT_EQ(Run({u"export"_s, siteVisit}), 2);
    EXPECT_TRUE(Err().contains(u"--csv or --xlsform")) << Err().toStdString();
    EXPECT_EQ(Run({u"export"_s, u"--csv"_s, u"--xlsform"_s, siteVisit}), 2);
    EXPECT_EQ(Run({u"export"_s, u"--xlsform"_s, siteVisit}), 2);
    EXPECT_TRUE(Err().contains(u"-o FILE.xlsx")) << Err().toStdString();
}

TEST_F(ExportCommand, WritesAWorkbookAndTellsWhatItDoesNotHave)
{
    EXPECT_EQ(Export({siteVisit}), 0) << Err().toStdString();
    EXPECT_TRUE(BytesOf(m_workbook).startsWith("PK"));
    EXPECT_TRUE(Err().contains(siteVisit + u": warning: The data folder is not in the sheet.\n"_s))
        << Err().toStdString();
    EXPECT_EQ(Out(), u""_s);
    EXPECT_EQ(Export({u"--quiet"_s, siteVisit}), 0);
    EXPECT_EQ(Err(), u""_s);
    EXPECT_EQ(Export({u"--json"_s, siteVisit}), 0);
    EXPECT_EQ(Objects().last()[u"code"_s], u"exported"_s);
}

TEST_F(ExportCommand, ChangesATextOnlyWhereItMay)
{
    const QString changed = InFolder(u"a.vmp"_s);
    WriteBytes(changed, BytesOf(siteVisit).replace("[INSPECTOR]", "[IN SPECTOR]"));
    EXPECT_EQ(Export({changed}), 1);
    EXPECT_TRUE(Err().contains(
        u"The column name of question 1 is 'IN_SPECTOR' in the sheet instead of 'IN SPECTOR'."))
        << Err().toStdString();
    EXPECT_TRUE(Err().endsWith(u"Nothing was written. With --lossy it will be.\n"));
    EXPECT_FALSE(QFile::exists(m_workbook));
    EXPECT_EQ(Export({u"--lossy"_s, changed}), 0);
    EXPECT_TRUE(QFile::exists(m_workbook));
}

TEST_F(ExportCommand, RefusesWhatAFormToolWouldRefuse)
{
    EXPECT_EQ(Export({DataFile(u"projects/edge-noitems.vmp"_s)}), 1);
    EXPECT_TRUE(Err().contains(u"has no items")) << Err().toStdString();
    EXPECT_EQ(Export({InFolder(u"none.vmp"_s)}), 3);
    EXPECT_FALSE(QFile::exists(m_workbook));
    EXPECT_EQ(Run({u"export"_s, u"--xlsform"_s, u"-o"_s, InFolder(u"no/a.xlsx"_s), siteVisit}), 5);
}

} // namespace
