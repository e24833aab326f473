#include "ui/main/version_log.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

struct Row {
    const char *what;
    QByteArray log;
    bool newer;
};

void ExpectAgainst(const QString &running, const std::vector<Row> &rows)
{
    for (const Row &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(IsNewer(row.log, running), row.newer) << row.log.left(40).toStdString();
    }
}

TEST(IsNewer, ComparesEachPartByItself)
{
    ExpectAgainst(u"1.1.2"_s, {
                                  {"the same", "1.1.2", false},
                                  {"older", "1.1.1", false},
                                  {"older in all parts", "0.0.0", false},
                                  {"greater major", "2.0.0", true},
                                  {"greater minor", "1.2.0", true},
                                  {"greater revision", "1.1.3", true},
                                  {"greater revision, though older", "1.0.5", true},
                                  {"greater minor, though older", "0.9.0", true},
                                  {"more behind it", "1.1.2 and 9.9.9\r\n", false},
                                  {"newer with more behind it", "1.1.3\r\n<html>", true},
                              });
    ExpectAgainst(u"1.12.10"_s, {
                                    {"a digit is never greater than a number", "1.9.9", false},
                                    {"major still is", "2.0.0", true},
                                });
}

TEST(IsNewer, TakesOneDigitForEachPart)
{
    ExpectAgainst(u"1.1.2"_s, {
                                  {"10 is minor 1 and revision 0", "1.10.3", false},
                                  {"12 is major 2", "12.0.0", true},
                                  {"10 is major 0", "10.0.0", false},
                                  {"third place, whatever is between", "1.1x3", true},
                                  {"revision 29 is 2", "1.1.29", false},
                              });
    ExpectAgainst(u"1.0.2"_s, {{"10 is minor 1 and revision 0", "1.10.3", true}});
}

TEST(IsNewer, FindsNoVersionWithoutThreeDigits)
{
    ExpectAgainst(u"0.0.0"_s, {
                                  {"empty", "", false},
                                  {"no dot", "112", false},
                                  {"a dot alone", ".", false},
                                  {"a dot at the start", ".1.2", false},
                                  {"a dot at the end", "1.", false},
                                  {"no revision", "1.1", false},
                                  {"ends before the revision", "1.1.", false},
                                  {"letters", "a.b.c", false},
                                  {"a word", "Version x.9.9", false},
                                  {"an earlier dot", "vellumo.example 9.9.9", false},
                                  {"a letter for the revision", "1.1.b", false},
                                  {"a full stop for the minor", "9..9.9", false},
                                  {"a byte-order mark inside", "\xEF\xBB\xBF.9.9", false},
                                  {"two bytes a character", {"9\0.\0009\0.\0009\0", 10}, false},
                                  {"digits of another script", "\xD9\xA9.\xD9\xA9.\xD9\xA9", false},
                                  {"zero bytes", QByteArray(5000, '\0'), false},
                              });
    ExpectAgainst(u"1.1.2"_s, {{"a mark before it is passed over",
                                "\xEF\xBB\xBF"
                                "1.1.3",
                                true},
                               {"so is a word", "Version 1.1.3", true}});
}

TEST(IsNewer, LooksAtTheFirst4096BytesOnly)
{
    ExpectAgainst(u"1.1.2"_s,
                  {
                      {"the last digit just inside", QByteArray(4091, ' ') + "9.9.9", true},
                      {"the last digit just outside", QByteArray(4092, ' ') + "9.9.9", false},
                      {"far outside", QByteArray(1000000, ' ') + "9.9.9", false},
                      {"a long one", "1.1.3" + QByteArray(1000000, 'x'), true},
                  });
}

} // namespace
