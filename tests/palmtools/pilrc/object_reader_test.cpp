#include "palmtools/pilrc/object_reader.h"

#include "palmtools/pilrc/objects.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

TEST(ObjectReader, RefersToThePreviousObject)
{
    const struct {
        const char *what, *script, *previous;
    } rows[] = {
        {"nothing yet", "FIELD ID 1 AT (PREVLEFT PREVTOP PREVRIGHT PREVBOTTOM)", "0 0 0 0 "},
        {"a title is none", "GADGET ID 1 AT (1 2 3 4) TITLE \"a\"", "1 2 3 4 "},
        {"nor a popup list", "GADGET ID 1 AT (1 2 3 4) POPUPLIST ID 1 2", "1 2 3 4 "},
        {"an indicator is one", "GADGET ID 1 AT (1 2 3 4) GRAFFITISTATEINDICATOR AT (5 6)",
         "5 6 9 10 "},
        {"its own place does not count while it is told",
         "GADGET ID 1 AT (1 2 3 4) GADGET ID 2 AT (PREVLEFT+10 PREVLEFT PREVLEFT PREVTOP)",
         "11 1 1 2 "},
        {"nor in its attributes",
         "GADGET ID 1 AT (1 2 3 4) LIST ID 2 AT (7 7 7 7) VISIBLEITEMS PREVWIDTH", "7 7 7 33 "},
        {"settled sizes count",
         "LABEL \"\" ID 1 AT (5 6) FONT 3 GADGET ID 2 AT (PREVRIGHT PREVBOTTOM 1 PREVHEIGHT)",
         "5 17 1 11 "},
        {"the final height of a list counts",
         "LIST ID 1 AT (5 6 7 8) VISIBLEITEMS 2 GADGET ID 2 AT (1 1 1 PREVHEIGHT)", "1 1 1 22 "},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Objects(row.script).PreviousAtEnd(), row.previous);
    }
}

TEST(ObjectReader, EndsObjectsAtTheFirstOtherWord)
{
    for (const ExampleObject &example : exampleObjects) {
        SCOPED_TRACE(example.script);
        Objects objects(std::string(example.script) + "\nSAVEBEHIND");
        objects.Next();
        EXPECT_TRUE(objects.words().NextIsName("SAVEBEHIND"));
    }
}

TEST(ObjectReader, ReadsTextsAndNumbers)
{
    Objects objects("LIST \"a\" + \"b\" \"c\" \"\" ID 4 AT (1 2 3 4) POPUPLIST ID 2 3");
    const FormObject list = objects.Next();
    EXPECT_EQ(list.texts, (std::vector<std::string_view>{"ab", "c", ""}));
    EXPECT_EQ(list.number, 4);

    const FormObject popup = objects.Next();
    EXPECT_EQ(popup.number, 2);
    EXPECT_EQ(popup.listNumber, 3);
}

TEST(ObjectReader, LeavesWhatIsNoObject)
{
    Warnings warnings;
    for (const char *script : {"END", "\"TITLE\"", "5", "", "TITLES", "tBTN", "FORM"}) {
        SCOPED_TRACE(script);
        ScriptReader words(script, warnings);
        ArgumentReader arguments(words);
        EXPECT_FALSE(ReadObject(arguments));
        EXPECT_EQ(words.Take().written, script);
    }
}

} // namespace
} // namespace palmtools
