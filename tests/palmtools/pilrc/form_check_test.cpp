#include "palmtools/pilrc/form_check.h"

#include "palmtools/pilrc/compiled.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(FormCheck, SeesObjectsOneByOne)
{
    Warnings warnings;
    ScriptReader words("", warnings);
    FormCheck check(words);
    check.See({.kind = ObjectKind::field, .number = 1});
    EXPECT_EQ(warnings.kept().size(), 0u);
    check.See({.kind = ObjectKind::scrollBar, .number = 1, .place = {0, 0, 6, 8}});
    ASSERT_EQ(warnings.kept().size(), 2u);
    EXPECT_EQ(warnings.kept()[0].text, "object number 1 is used twice");
    EXPECT_EQ(warnings.kept()[1].text, "the scroll bar is not 7 pixels wide or high");
    check.SeeEnd();
    ASSERT_EQ(warnings.kept().size(), 3u);
    EXPECT_EQ(warnings.kept()[2].text, "editable field without a Graffiti state indicator");
}

TEST(FormCheck, WarnsAboutFieldsWithoutAnIndicator)
{
    const std::string field = "FIELD ID 2 AT (1 2 3 4) ";
    const std::string indicator = "GRAFFITISTATEINDICATOR AT (1 2) ";
    const std::string warning = "5 warning editable field without a Graffiti state indicator\n";
    ExpectDiagnostics({
        {"an editable field", form + field + "\n\nEND\n\n", warning},
        {"a second form does not help",
         form + field + "\n\nEND FORM 2 1 2 3 4 BEGIN " + indicator + "END", warning},
        {"an indicator", form + field + indicator + "END", ""},
        {"an indicator in front", form + indicator + field + "END", ""},
        {"not editable", form + field + "NONEDITABLE END", ""},
        {"no field", form + "END", ""},
        {"a second indicator, seen at the next word",
         form + indicator + "\n" + indicator + "\n\nEND",
         "6 warning a second Graffiti state indicator\n"},
    });
}

TEST(FormCheck, WarnsAboutNumbersUsedTwice)
{
    const std::string label = "LABEL \"a\" ID 7 AT (1 2)\n";
    const std::string gadget = "GADGET ID 7 AT (1 2 3 4)\n";
    const std::string twice = " warning object number 7 is used twice\n";
    ExpectDiagnostics({
        {"two objects, seen at the next word", form + gadget + gadget + "\nEND", "6" + twice},
        {"two labels", form + label + label + "END", ""},
        {"a label and another", form + label + gadget + "END", "5" + twice},
        {"another and a label", form + gadget + label + "END", "5" + twice},
        {"only the first is looked at", form + label + gadget + label + "END", "5" + twice},
        {"the third meets the first too", form + gadget + label + label + "END",
         "5" + twice + "6" + twice},
        {"popup lists have none", form + gadget + "POPUPLIST ID 7 7\nPOPUPLIST ID 7 7 END", ""},
        {"nor titles and indicators",
         form + "LABEL \"a\" ID 0 AT (1 2) TITLE \"a\" "
                "GRAFFITISTATEINDICATOR AT (1 2) END",
         ""},
        {"in another form", form + gadget + "END FORM 2 1 2 3 4 BEGIN " + gadget + "END", ""},
        {"the form itself", "FORM 7 1 2 3 4 BEGIN " + gadget + "END", ""},
    });
}

TEST(FormCheck, WarnsAboutScrollBars)
{
    const std::string warning = "4 warning the scroll bar is not 7 pixels wide or high\n";
    ExpectDiagnostics({
        {"7 wide", form + "SCROLLBAR ID 3 AT (1 2 7 84)\nEND", ""},
        {"7 high", form + "SCROLLBAR ID 3 AT (1 2 84 7)\nEND", ""},
        {"both", form + "SCROLLBAR ID 3 AT (1 2 7 7)\nEND", ""},
        {"neither", form + "SCROLLBAR ID 3 AT (1 2 6 8)\nEND", warning},
        {"settled", form + "SCROLLBAR ID 3 AT (1 2 AUTO AUTO)\nEND", warning},
    });
}

} // namespace
} // namespace palmtools
