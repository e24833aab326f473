#include "readback/text_check.h"

#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(TextCheck, FindsOtherTexts)
{
    const Damage rows[] = {
        {"column",
         Replaced("tSTL", 1004, "FARE", "Fare"),
         {u"column-name [column name 8] "
          "The column name of question 8 is 'Fare' instead of 'FARE'."_s}},
        {"prefix",
         Replaced("tSTL", 1004, QByteArray(1, '\0'), QByteArray("x\0", 2)),
         {u"column-prefix [prefix of all column names] "
          "The prefix of all column names is 'x' instead of ''."_s}},
        {"description",
         Replaced("desc", 1003, "Every", "every"),
         {u"description [description] The description is 'every kind of question once' "
          "instead of 'Every kind of question once'."_s}},
        {"folder",
         Replaced("sdir", 1005, "Ten\\", "Ten"),
         {u"data-folder [data folder] "
          "The data folder is 'C:\\Data\\Ten' instead of 'C:\\Data\\Ten\\'."_s}},
        {"name",
         Replaced("tAIN", 1000, "tentypes", "TenTypes"),
         {u"form-name [form name] The form name is 'TenTypes' instead of 'tentypes'."_s}},
        {"version",
         Replaced("tver", 1, "2.1", "2.10"),
         {u"form-version [form version] The form version is '2.10' instead of '2.1'."_s}},
        {"identifier in small letters",
         Replaced("guid", 1006, "ABCDEF", "abcdef"),
         {u"identifier [identifier] The identifier is '0123456789abcdef0123456789ABCDEF' "
          "instead of 32 hexadecimal digits."_s}},
        {"short identifier",
         Replaced("guid", 1006, "F01", "F1"),
         {u"identifier [identifier] The identifier is '0123456789ABCDEF123456789ABCDEF' "
          "instead of 32 hexadecimal digits."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}
