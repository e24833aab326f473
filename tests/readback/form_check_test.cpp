#include "readback/form_check.h"

#include "readback/findings.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(FormCheck, FindsOtherTexts)
{
    const Damage rows[] = {
        {"title",
         Replaced("tFRM", 2, "Wind", "Wand"),
         {u"title [title 2] The title of question 2 is 'Wand' instead of 'Wind'."_s}},
        {"question",
         Replaced("tFRM", 6, "rain?", "rain!"),
         {u"question-text [question text 6] "
          "The question text of question 6 is 'Did it rain!' instead of 'Did it rain?'."_s}},
        {"item",
         Replaced("tFRM", 1, "Robin", "Rabin"),
         {u"item [item list 1] "
          "The item list of question 1 has as item 2 'Rabin' instead of 'Robin'."_s}},
        {"button",
         Replaced("tFRM", 1, "Next", "Skip"),
         {u"form-object [form 1] "
          "The form of question 1: the text of button 100 is 'Skip' instead of 'Next'."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

QByteArray WithChangedForm(quint32 number, qsizetype offset, quint32 value)
{
    return WithData(TenTypes(), "tFRM", number,
                    [&](const QByteArray &data) { return WithNumber(data, offset, 2, value); });
}

/// Where an object lies in a form, by the bytes that it begins with.
qsizetype PlaceIn(quint32 form, QByteArrayView beginning)
{
    return DataOf(Read(TenTypes()), "tFRM", form).indexOf(beginning);
}

TEST(FormCheck, FindsOtherFormsAndFields)
{
    const qsizetype field = PlaceIn(10, {"\0\x02\0\x0A\0\x38", 6});
    ASSERT_GT(field, 0);
    const Damage rows[] = {
        {"a wider form",
         WithChangedForm(3, 14, 161),
         {u"form-header [form 3] The form of question 3: the width of the form is 161 instead of 160."_s}},
        {"a form not shown",
         WithChangedForm(3, 42, 0),
         {u"form-header [form 3] The form of question 3: the flag word of the form is 0x0000 instead of 0x8000."_s}},
        {"a field elsewhere",
         WithChangedForm(10, field + 2, 11),
         {u"form-object [form 10] "
          "The form of question 10: the left edge of field 2 is 11 instead of 10."_s}},
        {"a field for fewer letters",
         WithChangedForm(10, field + 28, 254),
         {u"form-object [form 10] "
          "The form of question 10: the longest content of field 2 is 254 instead of 255."_s}},
        {"a field for numbers",
         WithChangedForm(10, field + 10, 0xA242),
         {u"form-object [form 10] "
          "The form of question 10: the flag word of field 2 is 0xa242 instead of 0xa240."_s}},
        {"another number of a field",
         WithChangedForm(10, field, 3),
         {u"form-objects [form 10] "
          "The form of question 10: object 3 is field 3 instead of field 2."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

TEST(FormCheck, FindsOtherListsAndTables)
{
    const qsizetype list = PlaceIn(1, {"\0\x04\0\x0D\0\x35", 6});
    const qsizetype table = PlaceIn(1, {"\0\x02\0\x0D\0\x36", 6});
    ASSERT_TRUE(list > 0 && table > 0);
    const Damage rows[] = {
        {"columns of another width",
         WithChangedForm(1, table + 74, 13),
         {u"form-object [form 1] The form of question 1: the columns of table 2 differ."_s}},
        {"a list too narrow",
         WithChangedForm(1, list + 6, 42),
         {u"form-object [form 1] "
          "The form of question 1: the width of list 4 is 42 instead of 43."_s}},
        {"a list as wide as its widest item", WithChangedForm(1, list + 6, 43), {}},
        {"a list too wide",
         WithChangedForm(1, list + 6, 44),
         {u"form-object [form 1] "
          "The form of question 1: the width of list 4 is 44 instead of 43."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}

TEST(FormCheck, FindsAnotherFormOrNavigation)
{
    const PalmDatabase tenTypes = Read(TenTypes());
    const auto formOf = [&tenTypes](quint32 number) {
        return [data = DataOf(tenTypes, "tFRM", number), number](const QByteArray &) {
            return WithNumber(data, 40, 2, number);
        };
    };
    const Damage rows[] = {
        {"the form of another question",
         WithData(TenTypes(), "tFRM", 4, formOf(7)),
         {u"form-header [form 4] The form of question 4: the number of the form is 7 instead of 4."_s,
          u"title [title 4] The title of question 4 is 'Map' instead of 'Sign'."_s,
          u"question-text [question text 4] The question text of question 4 is "
          "'Sketch the round' instead of 'Sign for the round'."_s,
          u"form-object [form 4] The form of question 4: the top edge of gadget 2 is 50 instead of 75."_s,
          u"form-object [form 4] The form of question 4: the height of gadget 2 is 88 instead of 61."_s}},
        {"another navigation",
         Replaced("fnav", 6, QByteArray("\0\x03\0\0\0\x02", 6), QByteArray("\0\x03\0\0\0\x63", 6)),
         {u"navigation [navigation 6] The navigation of question 6 is not that of its type."_s}},
    };
    for (const Damage &row : rows)
        ExpectFound(row, TenTypesProject());
}
