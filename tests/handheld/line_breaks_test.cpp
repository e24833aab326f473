#include "handheld/line_breaks.h"

#include "handheld/font_widths.h"
#include "handheld/letters.h"
#include "support/print.h"

#include <gtest/gtest.h>

using namespace vellumo;

namespace {

QList<QByteArray> Copied(const QList<QByteArrayView> &views)
{
    QList<QByteArray> copies;
    for (const QByteArrayView view : views)
        copies.append(view.toByteArray());
    return copies;
}

} // namespace

TEST(LineBreaks, StandAtLineFeeds)
{
    EXPECT_EQ(Copied(TypedLines("")), QList<QByteArray>{""});
    EXPECT_EQ(Copied(TypedLines("a b")), QList<QByteArray>{"a b"});
    EXPECT_EQ(Copied(TypedLines("a\nb c\n\nd\n")), (QList<QByteArray>{"a", "b c", "", "d", ""}));
    EXPECT_EQ(Copied(TypedLines("a\rb")), QList<QByteArray>{"a\rb"});
}

TEST(LineBreaks, WrapAtBlanksWherePossible)
{
    // i is 3 pixels wide, a blank 2.
    const struct {
        const char *what;
        QByteArray line;
        int width;
        QList<QByteArray> lines;
    } rows[] = {
        {"nothing", "", 10, {""}},
        {"what fits to the pixel", "ii ii", 14, {"ii ii"}},
        {"a pixel more", "ii ii", 13, {"ii", "ii"}},
        {"the last blank counts", "i i i i", 13, {"i i i", "i"}},
        {"a blank right behind what fits", "iii iii", 9, {"iii", "iii"}},
        {"one blank goes, others stay", "iii  iii", 11, {"iii ", "iii"}},
        {"a long word", "iiiiiii", 9, {"iii", "iii", "i"}},
        {"a long word behind a short one", "i iiiii", 9, {"i", "iii", "ii"}},
        {"a blank at the start is no place", " iiii", 8, {" ii", "ii"}},
        {"a letter too wide for any line", "Wi", 2, {"W", "i"}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Copied(WrappedLines(row.line, row.width, 1)), row.lines);
    }
}

TEST(LineBreaks, LeaveNoLineTooWideAndLoseNothingButBlanks)
{
    QByteArray text;
    for (int i = 0; i < 400; ++i)
        text += static_cast<char>(i % 7 == 3 ? ' ' : 33 + (i * 53) % 90);
    for (int width = 20; width < 200; ++width) {
        const QList<QByteArray> lines = Copied(WrappedLines(text, width, 1));
        for (const QByteArray &line : lines)
            EXPECT_LE(DrawnWidth(line, 1), quint32(width));
        EXPECT_EQ(lines.join().replace(' ', ""), QByteArray(text).replace(' ', ""));
    }
}
