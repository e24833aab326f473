#include "editing/pasted_items.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QStringList NumberedItems(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items += u"Item %1"_s.arg(i);
    return items;
}

TEST(PastedItems, AreAddedByTheRulesOfAdding)
{
    ItemList items;
    items.SetItems({u"a"_s});
    const QString country = u"South Georgia and the South Sandwich Islands"_s;
    const QString refused =
        PasteItems(items, wizardItemList, u"Pulldown List"_s,
                   {u"b"_s, u"a"_s, u"say \"c\""_s, QString(33, u'd'), country, u"e"_s});
    EXPECT_EQ(items.Items(), (QStringList{u"a"_s, u"b"_s, country, u"e"_s}));
    EXPECT_EQ(refused, u"Not added:\n"
                       "\"a\": The item already exists. Please enter a different name.\n"
                       "\"say \"c\"\": Double quotes are not allowed.\n\""_s +
                           QString(33, u'd') +
                           u"\": Please keep the item length to 32 characters or less."_s);
}

TEST(PastedItems, EndWhereTheHostStopsAdding)
{
    const struct {
        const char *what;
        const ItemListHost &host;
        QString type;
        int fit;
    } rows[] = {{"the wizard's list", wizardItemList, u"Pulldown List"_s, 256},
                {"its check boxes", wizardItemList, u"Checkboxes"_s, 33},
                {"the dialog", propertyItemList, u"Checkboxes"_s, 255}};
    for (const auto &row : rows) {
        ItemList items;
        const QString refused = PasteItems(items, row.host, row.type, NumberedItems(row.fit + 12));
        EXPECT_EQ(items.Items(), NumberedItems(row.fit)) << row.what;
        EXPECT_EQ(refused.count(u'\n'), 11) << row.what;
        EXPECT_TRUE(refused.endsWith(u"\nand 2 more."_s)) << row.what;
    }
}

TEST(PastedItems, AreToldShortened)
{
    ItemList items;
    const QString refused =
        PasteItems(items, wizardItemList, u"Checkboxes"_s, {QString(1000, u'x')});
    EXPECT_TRUE(refused.contains(u'"' + QString(40, u'x') + u"\u2026\": "_s)) << refused.size();
}

} // namespace
