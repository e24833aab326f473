#include "readback/summary.h"

#include "readback/databases.h"
#include "readback/projects.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Summary, TellsWhatIsInADatabase)
{
    const DatabaseSummary summary = Summarize(Read(Golden(u"tentypes"_s)));
    EXPECT_EQ(summary.name, u"tentypes"_s);
    EXPECT_EQ(summary.type, u"kelp"_s);
    EXPECT_EQ(summary.creator, u"Wmpt"_s);
    EXPECT_EQ(summary.size, 5411);
    EXPECT_EQ(summary.resources, 29);
    EXPECT_EQ(summary.questions, 10);
    const QStringList types = {
        u"Checkboxes"_s, u"Pulldown List"_s, u"Scanned Barcode"_s, u"Signature"_s, u"Date/Time"_s,
        u"Yes/No"_s,     u"Notes"_s,         u"Currency"_s,        u"Numeric"_s,   u"Text"_s};
    EXPECT_EQ(summary.types, types);
    EXPECT_EQ(summary.columnNames.size(), 10);
    EXPECT_EQ(summary.columnNames.value(4), u"START_AT"_s);
    EXPECT_EQ(summary.titles.size(), 10);
    EXPECT_EQ(summary.titles.value(4), u"Start"_s);
}

TEST(Summary, TakesTextsForWindows1252)
{
    const DatabaseSummary summary = Summarize(Read(Golden(u"latin1"_s)));
    EXPECT_EQ(summary.titles.value(2), u"Stra\u00DFe"_s);
    EXPECT_EQ(summary.columnNames.value(0), u"PR\u00C9NOM"_s);
}

TEST(Summary, LeavesOutWhatCannotBeRead)
{
    const PalmDatabase foreign = {.name = "x",
                                  .type = "appl",
                                  .creator = "memo",
                                  .resources = {{"code", 0, "ab"}},
                                  .size = 9};
    const DatabaseSummary summary = Summarize(foreign);
    EXPECT_EQ(summary.type, u"appl"_s);
    EXPECT_EQ(summary.resources, 1);
    EXPECT_FALSE(summary.questions.has_value());
    EXPECT_TRUE(summary.types.isEmpty() && summary.columnNames.isEmpty());

    QByteArray damaged = WithData(Golden(u"tentypes"_s), "tFRM", 1,
                                  [](const QByteArray &form) { return form.chopped(1); });
    damaged = WithData(damaged, "ques", 1002, [](const QByteArray &) { return "\x10\x02\xFF"; });
    EXPECT_EQ(Summarize(Read(damaged)).titles.size(), 9);
    EXPECT_EQ(Summarize(Read(damaged)).types, (QStringList{u"0x10"_s, u"Yes/No"_s, u"0xff"_s}));
}
