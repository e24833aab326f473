#include "palmtools/pilrc/object_reader.h"

#include "palmtools/pilrc/font_widths.h"
#include "palmtools/support.h"

#include <gtest/gtest.h>

namespace palmtools {
namespace {

std::string ShownPlace(const Rectangle &place)
{
    std::string shown;
    for (const std::int64_t number : {place.x, place.y, place.w, place.h})
        shown += std::to_string(number) + " ";
    return shown;
}

/// Reads the objects of a script one after the other.
class Objects
{
public:
    explicit Objects(std::string script) : m_script(std::move(script)) {}

    FormObject Next() { return ReadObject(m_arguments).value(); }

    /// The rectangle to which the next object would refer after the whole script was read.
    std::string PreviousAtEnd()
    {
        while (!m_words.NextIs(WordKind::end))
            Next();
        return ShownPlace(m_arguments.previous());
    }

    ScriptReader &words() { return m_words; }

private:
    std::string m_script;
    std::vector<Diagnostic> m_warnings;
    ScriptReader m_words{m_script, m_warnings};
    ArgumentReader m_arguments{m_words};
};

std::string W(int margin, std::string_view text, int font = 0)
{
    return std::to_string(TextWidth(text, font) + margin);
}

TEST(ObjectReader, SettlesSizes)
{
    const struct {
        const char *what, *script;
        std::string place;
    } rows[] = {
        {"as told", "BUTTON \"Go\" ID 1 AT (1 2 3 4)", "1 2 3 4 "},
        {"button", "BUTTON \"Go\" ID 1 AT (1 2 AUTO AUTO)", "1 2 " + W(12, "Go") + " 12 "},
        {"width only", "BUTTON \"Go\" ID 1 AT (1 2 AUTO 5)", "1 2 " + W(12, "Go") + " 5 "},
        {"height only", "BUTTON \"Go\" ID 1 AT (1 2 5 AUTO)", "1 2 5 12 "},
        {"check box", "CHECKBOX \"Go\" ID 1 AT (1 2 AUTO AUTO)", "1 2 " + W(18, "Go") + " 12 "},
        {"popup trigger", "POPUPTRIGGER \"Go\" ID 1 AT (1 2 AUTO AUTO)",
         "1 2 " + W(18, "Go") + " 12 "},
        {"selector trigger", "SELECTORTRIGGER \"Go\" ID 1 AT (1 2 AUTO AUTO)",
         "1 2 " + W(6, "Go") + " 12 "},
        {"an empty text", "SELECTORTRIGGER \"\" ID 1 AT (1 2 AUTO AUTO)", "1 2 6 12 "},
        {"the widest item", "LIST \"i\" \"WW\" \"iii\" ID 1 AT (1 2 AUTO AUTO)",
         "1 2 " + W(6, "WW") + " 12 "},
        {"no item", "LIST ID 1 AT (1 2 AUTO AUTO)", "1 2 6 12 "},
        {"field", "FIELD ID 1 AT (1 2 AUTO AUTO)", "1 2 0 12 "},
        {"gadget", "GADGET ID 1 AT (1 2 AUTO AUTO)", "1 2 0 12 "},
        {"table", "TABLE ID 1 AT (1 2 AUTO AUTO)", "1 2 0 12 "},
        {"scroll bar", "SCROLLBAR ID 1 AT (1 2 AUTO AUTO)", "1 2 0 12 "},
        {"bold, told at the end", "BUTTON \"Go\" ID 1 AT (1 2 AUTO AUTO) NOFRAME FONT 1",
         "1 2 " + W(12, "Go", 1) + " 12 "},
        {"the symbols are lower", "BUTTON \"\\v\" ID 1 AT (1 2 AUTO AUTO) FONT 3",
         "1 2 " + W(12, "\v", 3) + " 11 "},
        {"field in the symbols", "FIELD ID 1 AT (1 2 AUTO AUTO) FONT 3", "1 2 0 11 "},
        {"label", "LABEL \"Go\" ID 1 AT (1 2)", "1 2 " + W(0, "Go") + " 12 "},
        {"label in bold", "LABEL \"Go\" ID 1 AT (1 2) FONT 1", "1 2 " + W(0, "Go", 1) + " 12 "},
        {"label in symbols", "LABEL \"Go\" ID 1 AT (1 2) FONT 3", "1 2 " + W(0, "Go", 3) + " 11 "},
        {"indicator", "GRAFFITISTATEINDICATOR AT (1 2)", "1 2 9 10 "},
        {"the last font counts", "FIELD ID 1 AT (1 2 AUTO AUTO) FONT 3 FONT 0", "1 2 0 12 "},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(ShownPlace(Objects(row.script).Next().place), row.place);
        EXPECT_EQ(Objects(row.script).PreviousAtEnd(), row.place);
    }
}

TEST(ObjectReader, SettlesTheHeightOfLists)
{
    const struct {
        const char *what;
        std::size_t items;
        const char *sizeAndAttributes;
        int height;
    } rows[] = {
        {"as told", 3, "50 70)", 70},
        {"visible items over AUTO", 3, "50 AUTO) VISIBLEITEMS 8", 88},
        {"visible items over a number", 3, "50 70) VISIBLEITEMS 1", 11},
        {"last below the greatest height", 0, "50 AUTO) VISIBLEITEMS 14", 154},
        {"first above the greatest height", 0, "50 AUTO) VISIBLEITEMS 15", 160},
        {"far above", 0, "50 AUTO) VISIBLEITEMS 65535", 160},
        {"in another font too", 3, "50 AUTO) VISIBLEITEMS 2 FONT 3", 22},
        {"none visible", 3, "50 70) VISIBLEITEMS 0", 0},
        {"AUTO is no zero", 3, "50 AUTO)", 12},
        {"zero stands for all items", 3, "50 0)", 33},
        {"zero and no items", 0, "50 0)", 0},
        {"zero and the most that are shown", 14, "50 0)", 154},
        {"zero and one more", 15, "50 0)", 154},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const std::string script =
            "LIST " + Repeated("\"a\" ", row.items) + "ID 1 AT (1 2 " + row.sizeAndAttributes;
        const std::string place = "1 2 50 " + std::to_string(row.height) + " ";
        EXPECT_EQ(ShownPlace(Objects(script).Next().place), place);
        EXPECT_EQ(Objects(script).PreviousAtEnd(), place);
    }
}

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

/// An object of every kind with what it must have.
struct Example {
    const char *script;
    const char *attributes; ///< the words that it takes, with a blank around each
};

constexpr Example examples[] = {
    {"TITLE \"a\"", ""},
    {"LABEL \"a\" ID 1 AT (1 2)", " USABLE NONUSABLE FONT "},
    {"FIELD ID 1 AT (1 2 3 4)",
     " USABLE NONUSABLE FONT EDITABLE NONEDITABLE SINGLELINE MULTIPLELINES UNDERLINED NUMERIC "
     "MAXCHARS "},
    {"BUTTON \"a\" ID 1 AT (1 2 3 4)",
     " USABLE NONUSABLE FONT LEFTANCHOR RIGHTANCHOR FRAME NOFRAME "},
    {"CHECKBOX \"a\" ID 1 AT (1 2 3 4)", " USABLE NONUSABLE FONT LEFTANCHOR RIGHTANCHOR GROUP "},
    {"SELECTORTRIGGER \"a\" ID 1 AT (1 2 3 4)", " USABLE NONUSABLE FONT LEFTANCHOR RIGHTANCHOR "},
    {"POPUPTRIGGER \"a\" ID 1 AT (1 2 3 4)", " USABLE NONUSABLE FONT LEFTANCHOR RIGHTANCHOR "},
    {"LIST \"a\" ID 1 AT (1 2 3 4)", " USABLE NONUSABLE FONT VISIBLEITEMS "},
    {"POPUPLIST ID 1 2", ""},
    {"GRAFFITISTATEINDICATOR AT (1 2)", ""},
    {"GADGET ID 1 AT (1 2 3 4)", " USABLE NONUSABLE "},
    {"TABLE ID 1 AT (1 2 3 4)", " EDITABLE NONEDITABLE ROWS COLUMNS COLUMNWIDTHS "},
    {"SCROLLBAR ID 1 AT (1 2 3 4)", " USABLE NONUSABLE VALUE MIN MAX PAGESIZE "},
};

TEST(ObjectReader, TakesTheAttributesOfEachObjectOnly)
{
    constexpr const char *attributes[] = {
        "USABLE",       "NONUSABLE", "FONT",     "LEFTANCHOR",   "RIGHTANCHOR", "FRAME",
        "NOFRAME",      "GROUP",     "EDITABLE", "NONEDITABLE",  "SINGLELINE",  "MULTIPLELINES",
        "UNDERLINED",   "NUMERIC",   "MAXCHARS", "VISIBLEITEMS", "ROWS",        "COLUMNS",
        "COLUMNWIDTHS", "VALUE",     "MIN",      "MAX",          "PAGESIZE",
    };
    const std::string withNumber =
        " FONT GROUP MAXCHARS VISIBLEITEMS ROWS COLUMNS VALUE MIN MAX PAGESIZE ";
    for (const Example &example : examples) {
        for (const std::string attribute : attributes) {
            SCOPED_TRACE(example.script + (" " + attribute));
            const std::string word = " " + attribute + " ";
            const bool isNumbered = withNumber.find(word) != withNumber.npos;
            Objects objects(example.script + word + (isNumbered ? "1" : ""));
            if (std::string(example.attributes).find(word) != std::string::npos) {
                EXPECT_NO_THROW(objects.Next());
                EXPECT_TRUE(objects.words().NextIs(WordKind::end));
            } else {
                try {
                    objects.Next();
                    ADD_FAILURE() << "was taken";
                } catch (const ScriptError &error) {
                    EXPECT_EQ(error.what(), attribute + " does not belong here");
                }
            }
        }
    }
}

TEST(ObjectReader, EndsObjectsAtTheFirstOtherWord)
{
    for (const Example &example : examples) {
        SCOPED_TRACE(example.script);
        Objects objects(std::string(example.script) + "\nSAVEBEHIND");
        objects.Next();
        EXPECT_TRUE(objects.words().NextIsName("SAVEBEHIND"));
    }
}

TEST(ObjectReader, HasDefaults)
{
    const FormObject field = Objects("FIELD ID 1 AT (1 2 3 4)").Next();
    EXPECT_TRUE(field.usable && field.editable && field.singleLine);
    EXPECT_TRUE(field.leftAnchor && field.frame);
    EXPECT_FALSE(field.underlined || field.numeric);
    EXPECT_EQ(field.font, 0);
    EXPECT_EQ(field.group, 0);
    EXPECT_EQ(field.maxChars, 0);
}

TEST(ObjectReader, ReadsAttributesInAnyOrder)
{
    const FormObject field = Objects("field id 7 at (1 2 3 4) maxchars 255 font 1 NonUsable\n"
                                     "numeric MULTIPLELINES underlined NONEDITABLE")
                                 .Next();
    EXPECT_EQ(field.kind, ObjectKind::field);
    EXPECT_EQ(field.number, 7);
    EXPECT_FALSE(field.usable || field.editable || field.singleLine);
    EXPECT_TRUE(field.underlined && field.numeric);
    EXPECT_EQ(field.font, 1);
    EXPECT_EQ(field.maxChars, 255);

    const FormObject bar =
        Objects("SCROLLBAR 3 1 2 3 4 PAGESIZE 10 MAX 100 MIN 0-5 VALUE 50").Next();
    EXPECT_EQ(bar.value, 50);
    EXPECT_EQ(bar.min, -5);
    EXPECT_EQ(bar.max, 100);
    EXPECT_EQ(bar.pageSize, 10);

    const FormObject box =
        Objects("CHECKBOX \"a\" ID 1 AT (1 2 3 4) GROUP 5 RIGHTANCHOR GROUP 6").Next();
    EXPECT_EQ(box.group, 6);
    EXPECT_FALSE(box.leftAnchor);
}

TEST(ObjectReader, LetsTheLastAttributeCount)
{
    const FormObject button = Objects("BUTTON \"a\" ID 1 AT (1 2 3 4) NONUSABLE NOFRAME USABLE "
                                      "RIGHTANCHOR FRAME LEFTANCHOR NOFRAME")
                                  .Next();
    EXPECT_TRUE(button.usable);
    EXPECT_TRUE(button.leftAnchor);
    EXPECT_FALSE(button.frame);
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

TEST(ObjectReader, ReadsAsManyWidthsAsThereAreColumns)
{
    using Widths = std::vector<std::int64_t>;
    const std::string table = "TABLE ID 1 AT (1 2 3 4) ";
    EXPECT_EQ(Objects(table + "COLUMNS 2 COLUMNWIDTHS 12 120").Next().columnWidths,
              (Widths{12, 120}));
    EXPECT_EQ(Objects(table + "COLUMNWIDTHS COLUMNS 2").Next().columnWidths, Widths{});
    EXPECT_EQ(Objects(table + "COLUMNS 1 COLUMNWIDTHS 5 COLUMNWIDTHS 6").Next().columnWidths,
              Widths{6});
    EXPECT_THROW(Objects(table + "COLUMNS 2 COLUMNWIDTHS 5 ROWS 1").Next(), ScriptError);
}

TEST(ObjectReader, CountsRowsAndColumnsByTheirLow16Bits)
{
    const FormObject table = Objects("TABLE ID 1 AT (1 2 3 4) ROWS (-1) COLUMNS (-32768)").Next();
    EXPECT_EQ(table.rows, 65535);
    EXPECT_EQ(table.columns, 32768);
    EXPECT_EQ(Objects("TABLE ID 1 AT (1 2 3 4) ROWS 65535").Next().rows, 65535);
}

TEST(ObjectReader, LeavesWhatIsNoObject)
{
    std::vector<Diagnostic> warnings;
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
