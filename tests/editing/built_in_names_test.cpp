#include "editing/built_in_names.h"

#include "support/print.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

TEST(BuiltInNames, HaveTheStatesInOrder)
{
    const QStringList &names = StateNames();
    ASSERT_EQ(names.size(), 51);
    EXPECT_EQ(names.first(3), (QStringList{u"Alabama"_s, u"Alaska"_s, u"Arizona"_s}));
    EXPECT_EQ(names.last(3), (QStringList{u"West Virginia"_s, u"Wisconsin"_s, u"Wyoming"_s}));
    EXPECT_TRUE(names.contains(u"District of Columbia"_s));
}

TEST(BuiltInNames, HaveTheCountriesInTheirOwnOrder)
{
    const QStringList &names = CountryNames();
    ASSERT_EQ(names.size(), 240);
    EXPECT_EQ(names.first(3), (QStringList{u"Afghanistan"_s, u"Aland Islands"_s, u"Albania"_s}));
    EXPECT_EQ(names.last(3), (QStringList{u"Zaire"_s, u"Zambia"_s, u"Zimbabwe"_s}));
    EXPECT_EQ(names.mid(names.indexOf(u"Costa Rica"_s), 3),
              (QStringList{u"Costa Rica"_s, u"Ivory Coast"_s, u"Croatia (Hrvatska)"_s}));
}

TEST(BuiltInNames, AreDistinctAndHaveNoBlanksAround)
{
    for (const QStringList &names : {StateNames(), CountryNames()}) {
        EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), names.size());
        for (const QString &name : names) {
            EXPECT_FALSE(name.isEmpty());
            EXPECT_EQ(name, name.trimmed());
        }
    }
}

TEST(BuiltInNames, AreLoadedOnce)
{
    EXPECT_EQ(&StateNames(), &StateNames());
    EXPECT_EQ(&CountryNames(), &CountryNames());
}

} // namespace
