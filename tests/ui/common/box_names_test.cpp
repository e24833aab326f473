#include "ui/common/box_names.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// A box as assistive technology meets it.
class BoxNames : public testing::Test
{
protected:
    BoxNames()
    {
        NameComboBoxes();
        box.addItems({u"one"_s, u"two"_s});
        box.setAccessibleName(u"Number"_s);
    }

    QAccessibleInterface *Told() { return QAccessible::queryAccessibleInterface(&box); }

    QComboBox box;
};

TEST_F(BoxNames, AreOtherThanWhatIsChosen)
{
    EXPECT_EQ(Told()->role(), QAccessible::ComboBox);
    EXPECT_EQ(Told()->text(QAccessible::Name), u"Number"_s);
    EXPECT_EQ(Told()->text(QAccessible::Value), u"one"_s);
    box.setCurrentIndex(1);
    EXPECT_EQ(Told()->text(QAccessible::Value), u"two"_s);
}

TEST_F(BoxNames, HaveTheListAndWhereOneTypes)
{
    for (const bool editable : {false, true}) {
        box.setEditable(editable);
        ASSERT_EQ(Told()->childCount(), editable ? 2 : 1);
        ASSERT_NE(Told()->child(0), nullptr);
        EXPECT_EQ(Told()->child(0)->object(), box.view());
        EXPECT_EQ(Told()->indexOfChild(Told()->child(0)), 0);
        EXPECT_EQ(Told()->child(1) != nullptr, editable);
        EXPECT_EQ(Told()->child(2), nullptr);
        EXPECT_EQ(Told()->indexOfChild(Told()), -1) << "no child of its own";
    }
    ASSERT_EQ(Told()->child(1)->object(), box.lineEdit());
    EXPECT_EQ(Told()->indexOfChild(Told()->child(1)), 1);
}

TEST_F(BoxNames, OpenTheListAndCloseIt)
{
    box.show();
    QAccessibleActionInterface *actions = Told()->actionInterface();
    ASSERT_NE(actions, nullptr);
    for (const QString &action : actions->actionNames()) {
        actions->doAction(action);
        EXPECT_TRUE(box.view()->isVisible()) << action.toStdString();
        actions->doAction(u"none of them"_s);
        EXPECT_TRUE(box.view()->isVisible());
        actions->doAction(action);
        EXPECT_FALSE(box.view()->isVisible()) << action.toStdString();
    }
    EXPECT_EQ(actions->actionNames().size(), 2);
}

} // namespace
