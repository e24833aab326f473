#include "ui/common/one_line_box.h"

#include "support/print.h"
#include "ui/common/prompts.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const QString laid = u"two\r\nlines\tand a tab\n"_s;
const QString taken = u"two lines and a tab"_s;

/// A box of one line with the cursor between its two letters.
class OneLineBox : public testing::Test
{
protected:
    OneLineBox()
    {
        QGuiApplication::clipboard()->setText(laid);
        m_box.resize(300, 30);
        m_box.setText(u"ab"_s);
        m_box.setCursorPosition(1);
        KeepToOneLine(&m_box);
        m_box.show();
        m_box.setFocus();
    }

    QLineEdit m_box;
};

TEST_F(OneLineBox, TakesWhatIsPastedByKeys)
{
    QTest::keyClick(&m_box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_box.text(), u"a"_s + taken + u'b');
    m_box.undo();
    EXPECT_EQ(m_box.text(), u"ab"_s);
    m_box.selectAll();
    QTest::keyClick(&m_box, Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(m_box.text(), taken) << "in place of what was selected";
}

TEST_F(OneLineBox, TakesWhatIsPastedByItsMenu)
{
    QTimer::singleShot(0, [] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (QAction *action : menu->actions())
            if (action->text().startsWith(u"&Paste"_s))
                action->trigger();
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, m_box.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&m_box, &event);
    EXPECT_EQ(m_box.text(), u"a"_s + taken + u'b');
}

TEST_F(OneLineBox, TakesWhatIsDropped)
{
    QMimeData data;
    data.setText(laid);
    QDragEnterEvent enter(QPoint(290, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&m_box, &enter);
    QDropEvent drop(QPointF(290, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&m_box, &drop);
    EXPECT_EQ(m_box.text(), u"ab"_s + taken);
}

TEST_F(OneLineBox, LeavesTextsOfOneLineAlone)
{
    QGuiApplication::clipboard()->setText(u" plain "_s);
    QTest::keyClick(&m_box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_box.text(), u"a plain b"_s);
    m_box.setText(laid);
    EXPECT_EQ(m_box.text(), laid) << "what comes from a file stays";
    QGuiApplication::clipboard()->setText(laid);
    m_box.setReadOnly(true);
    m_box.setText(u"ab"_s);
    QTest::keyClick(&m_box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_box.text(), u"ab"_s);
}

TEST_F(OneLineBox, MayBeThatOfADropDown)
{
    QComboBox combo;
    combo.setEditable(true);
    KeepToOneLine(combo.lineEdit());
    combo.show();
    QTest::keyClick(&combo, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(combo.currentText(), taken);
    combo.clearEditText();
    QTest::keyClick(combo.lineEdit(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(combo.currentText(), taken);
}

TEST_F(OneLineBox, IsThatOfTheInputBox)
{
    QTimer::singleShot(0, [] {
        auto *input = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
        ASSERT_TRUE(input);
        QTest::keyClick(input->findChild<QLineEdit *>(), Qt::Key_V, Qt::ControlModifier);
        input->accept();
    });
    EXPECT_EQ(AskText(nullptr, u"New Item"_s, u"Which?"_s), taken);
}

} // namespace
