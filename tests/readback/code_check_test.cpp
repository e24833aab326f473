#include "readback/code_check.h"

#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(CodeCheck, FindsOtherCountsAndCodes)
{
    const Damage rows[] = {
        {"count",
         Replaced("flds", 1000, QByteArray("\0\x0A", 2), "\x01\x0B"),
         {u"question-count [question count] The question count is 267 instead of 10."_s}},
        {"codes of two types swapped",
         Replaced("ques", 1002, "\x09\x04", "\x04\x09"),
         {u"type-code [type 1] The type of question 1 is 0x04 instead of 0x09."_s,
          u"type-code [type 2] The type of question 2 is 0x09 instead of 0x04."_s}},
        {"the code of a value",
         Replaced("fldt", 1001, "\x05", "\x03"),
         {u"value-code [value kind 8] The value kind of question 8 is 0x03 instead of 0x05."_s}},
        {"a code less",
         Replaced("ques", 1002, "\x09\x04", "\x09"),
         {u"code-count [list of types] The list of types has 9 entries instead of 10."_s}},
        {"a column less",
         Replaced("tSTL", 1004,
                  QByteArray("\x0A"
                             "BIRDS\0",
                             7),
                  "\x09"),
         {u"column-count [list of column names] The list of column names has 9 entries instead of 10."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}
