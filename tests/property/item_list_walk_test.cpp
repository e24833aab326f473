// 10,000 operations on a list of items, side by side with a plain vector.

#include "editing/built_in_names.h"
#include "editing/item_list.h"
#include "property/random_projects.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString tooMany = u"Please keep the list to 255 items or less."_s;
const QString tooManyBoxes = u"Please keep the Check Box to 32 items or less."_s;

class ItemListWalk
{
public:
    /// One operation, on both.
    void Step()
    {
        constexpr std::array all = {&ItemListWalk::Add,      &ItemListWalk::Add,
                                    &ItemListWalk::AddNames, &ItemListWalk::Remove,
                                    &ItemListWalk::Move,     &ItemListWalk::Move,
                                    &ItemListWalk::Sort,     &ItemListWalk::Load,
                                    &ItemListWalk::Add,      &ItemListWalk::JudgeItem};
        (this->*m_random.OneOf(all))();
        JudgeRoom();
        m_most = std::max(m_most, m_model.size());
    }

    QStringList Expected() const { return {m_model.begin(), m_model.end()}; }
    QStringList Actual() const { return m_items.Items(); }
    std::size_t Most() const { return m_most; }

private:
    void Add()
    {
        // Few letters, so that one is often there already.
        const QString text =
            RandomText(m_random, 1, Letters::Plain) +
            (m_random.OnceIn(2) ? RandomText(m_random, 2, Letters::Awkward) : u""_s);
        const bool exists = std::ranges::count(m_model, text) > 0;
        ASSERT_EQ(m_items.Add(text),
                  exists ? u"The item already exists. Please enter a different name."_s
                         : QString());
        if (!exists && !text.isEmpty())
            m_model.push_back(text);
    }

    void AddNames()
    {
        const QStringList names = m_random.OneOf(
            std::array{StateNames(), CountryNames(), QStringList{u"a"_s, u" a"_s, u"b "_s}});
        const bool fits = std::ssize(m_model) + names.size() <= 255;
        ASSERT_EQ(m_items.AddNames(names), fits ? QString() : tooMany);
        for (const QString &name : names) {
            const bool exists = std::ranges::any_of(
                m_model, [&](const QString &item) { return Trimmed(item) == Trimmed(name); });
            if (fits && !exists)
                m_model.push_back(name);
        }
    }

    void Remove()
    {
        const ItemList::Rows rows = RandomRows(m_random.OnceIn(5) ? 100 : 5);
        ASSERT_EQ(m_items.Remove(rows).refusal,
                  rows.isEmpty() ? u"Please select an item to delete."_s : QString());
        std::vector<QString> kept;
        for (std::size_t i = 0; i < m_model.size(); ++i)
            if (!rows.contains(static_cast<qsizetype>(i)))
                kept.push_back(m_model[i]);
        m_model = kept;
    }

    void Move()
    {
        const ItemList::Rows rows = RandomRows(m_random.OnceIn(4) ? 3 : 1);
        const bool up = m_random.OnceIn(2);
        const ItemList::Change change = up ? m_items.MoveUp(rows) : m_items.MoveDown(rows);
        if (rows.size() != 1) {
            ASSERT_EQ(change.refusal, rows.isEmpty() ? u"Please select a question."_s
                                                     : u"Please select only one item."_s);
            ASSERT_EQ(change.selection, rows);
            return;
        }
        const qsizetype to = rows.first() + (up ? -1 : 1);
        const bool canMove = to >= 0 && to < std::ssize(m_model);
        ASSERT_EQ(change.refusal, QString());
        ASSERT_EQ(change.selection, canMove ? ItemList::Rows{to} : rows);
        if (canMove)
            std::swap(m_model[static_cast<std::size_t>(rows.first())],
                      m_model[static_cast<std::size_t>(to)]);
    }

    void Sort()
    {
        m_items.Sort();
        if (m_model.empty())
            return;
        std::ranges::sort(m_model);
        if (m_downwards)
            std::ranges::reverse(m_model);
        m_downwards = !m_downwards;
    }

    /// Another question's items, of any number, or none.
    void Load()
    {
        if (!m_random.OnceIn(3))
            return;
        if (m_random.OnceIn(4)) {
            m_items.Clear();
            m_model.clear();
            return;
        }
        QStringList items;
        for (int i = m_random.OneOf(std::array{1, 32, 33, 200, 254, 255, 256}); i > 0; --i)
            items += RandomText(m_random, 3, Letters::Plain);
        m_items.SetItems(items);
        m_model.assign(items.begin(), items.end());
    }

    void JudgeItem()
    {
        const QString text = RandomText(m_random, RandomLength(m_random, 32), Letters::Awkward);
        ASSERT_EQ(ObjectionToItem(text),
                  text.size() > 32   ? u"Please keep the item length to 32 characters or less."_s
                  : text.count(u'"') ? u"Double quotes are not allowed."_s
                                     : QString());
    }

    void JudgeRoom()
    {
        const QString type = RandomType(m_random, Letters::Awkward);
        const std::size_t most = type == "Pulldown List"_L1 ? 255
                                 : type == "Checkboxes"_L1  ? 32
                                                            : SIZE_MAX;
        const QString message = most == 32 ? tooManyBoxes : tooMany;
        ASSERT_EQ(m_items.RefusalToAdd(wizardItemList, type),
                  m_model.size() > most ? message : QString());
        ASSERT_EQ(m_items.RefusalToAdd(propertyItemList, type),
                  m_model.size() >= 255 ? tooMany : QString());
    }

    ItemList::Rows RandomRows(int most)
    {
        ItemList::Rows rows;
        for (int i = m_random.Between(m_random.OnceIn(10) ? 0 : 1, most); i > 0; --i) {
            if (m_model.empty())
                break;
            const qsizetype row = m_random.Below(std::ssize(m_model));
            if (!rows.contains(row))
                rows += row;
        }
        return rows;
    }

    Random m_random;
    ItemList m_items;
    std::vector<QString> m_model;
    bool m_downwards = false;
    std::size_t m_most = 0;
};

} // namespace

TEST(ItemListWalk, AgreesWithAVector)
{
    ItemListWalk walk;
    for (int i = 0; i < operations; ++i) {
        walk.Step();
        ASSERT_FALSE(testing::Test::HasFailure()) << "operation " << i;
        ASSERT_EQ(walk.Actual(), walk.Expected()) << "operation " << i;
    }
    EXPECT_GT(walk.Most(), 255u) << "the list was never full";
}
