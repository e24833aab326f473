#include "editing/title_history.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// "T1", "T2" and so on, both ends included.
QStringList Titles(int from, int to)
{
    QStringList titles;
    for (int i = from; i <= to; ++i)
        titles += u"T%1"_s.arg(i);
    return titles;
}

const QStringList one = {QString()};

const struct {
    const char *what;
    QStringList list, offered;
    QString title;
    QStringList listAfter, offeredAfter;
} rememberings[] = {
    {"the first of a project", one, one, u"Bird"_s, one + QStringList{u"Bird"_s},
     one + QStringList{u"Bird"_s}},
    {"none counts as the empty one that is there", one, one, u""_s, one, one},
    {"known", Titles(1, 3), Titles(1, 3), u"T2"_s, Titles(1, 3), Titles(1, 3)},
    {"another case is another title",
     Titles(1, 1),
     Titles(1, 1),
     u"t1"_s,
     {u"T1"_s, u"t1"_s},
     {u"T1"_s, u"t1"_s}},
    {"blanks count",
     Titles(1, 1),
     Titles(1, 1),
     u" T1 "_s,
     {u"T1"_s, u" T1 "_s},
     {u"T1"_s, u" T1 "_s}},
    {"none, where a file brought no empty one", Titles(1, 2), Titles(1, 2), u""_s,
     Titles(1, 2) + one, Titles(1, 2) + one},
    {"a file brought no title at all", {}, {}, u"T1"_s, Titles(1, 1), Titles(1, 1)},
    {"the tenth takes the last place", Titles(1, 9), Titles(1, 9), u"T10"_s, Titles(1, 10),
     Titles(1, 10)},
    {"the eleventh drives out the oldest", Titles(1, 10), Titles(1, 10), u"T11"_s, Titles(2, 11),
     Titles(1, 11)},
    {"the drop-down grows on", Titles(2, 11), Titles(1, 11), u"T12"_s, Titles(3, 12),
     Titles(1, 12)},
    {"one that was driven out comes back", Titles(2, 11), Titles(1, 11), u"T1"_s,
     Titles(3, 11) + Titles(1, 1), Titles(1, 11) + Titles(1, 1)},
    {"a file brought more than ten", Titles(1, 12), Titles(1, 12), u"New"_s,
     Titles(2, 10) + QStringList{u"New"_s} + Titles(11, 12), Titles(1, 12) + QStringList{u"New"_s}},
    {"known beyond the tenth place", Titles(1, 12), Titles(1, 12), u"T12"_s, Titles(1, 12),
     Titles(1, 12)},
    {"more is offered than was ever kept", Titles(1, 2), Titles(1, 10), u"New"_s,
     QStringList{u"T2"_s} + QStringList(7) + QStringList{QString(), u"New"_s},
     Titles(1, 10) + QStringList{u"New"_s}},
};

TEST(TitleHistory, RemembersATitle)
{
    for (const auto &row : rememberings) {
        SCOPED_TRACE(row.what);
        QStringList list = row.list;
        QStringList offered = row.offered;
        RememberTitle(row.title, list, offered);
        EXPECT_EQ(list, row.listAfter);
        EXPECT_EQ(offered, row.offeredAfter);
    }
}

TEST(TitleHistory, KeepsTheTenLatestOfANewProject)
{
    QStringList list = one;
    QStringList offered = one;
    for (const QString &title : Titles(1, 9))
        RememberTitle(title, list, offered);
    EXPECT_EQ(list, one + Titles(1, 9));

    RememberTitle(u"T10"_s, list, offered);
    EXPECT_EQ(list, Titles(1, 10));
    RememberTitle(u"T11"_s, list, offered);
    EXPECT_EQ(list, Titles(2, 11));
    EXPECT_EQ(offered, one + Titles(1, 11));
}

} // namespace
