#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <deque>
#include <functional>

/// Types a prepared text on the keyboard and nothing else, also into the dialogs that open on the
/// way: each key goes to whatever has the focus then.
class Typist
{
public:
    void Text(const QString &text)
    {
        m_steps.push_back({[text] { QTest::keyClicks(Focus(), text); }});
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {})
    {
        m_steps.push_back({[=] { QTest::keyClick(Focus(), key, held); }});
    }
    /// Presses Tab until the control of this objectName has the focus.
    void TabTo(const char *name)
    {
        m_steps.push_back({[this, name] {
            for (int tabs = 0; tabs < 60; ++tabs) {
                if (Focus()->objectName() == QLatin1StringView(name))
                    return;
                QTest::keyClick(Focus(), Qt::Key_Tab);
            }
            ADD_FAILURE() << "Tab never reaches " << name << " in "
                          << QApplication::activeWindow()->windowTitle().toStdString();
            m_steps.clear();
        }});
    }
    /// Rests the hands until the screen shows something, for ten seconds at most.
    void Await(const char *what, std::function<bool()> shown)
    {
        m_steps.push_back({[this, what, shown = std::move(shown)] {
                               if (!QTest::qWaitFor(shown, 10'000)) {
                                   ADD_FAILURE() << "never seen: " << what;
                                   m_steps.clear();
                               }
                           },
                           true});
    }

    /// Types it all; false when the dialogs did not close at its end.
    bool Run()
    {
        bool typed = false;
        Next(typed);
        return QTest::qWaitFor([&] { return typed && !QApplication::activeModalWidget(); }, 60'000);
    }

private:
    struct Step {
        std::function<void()> act;
        bool awaits = false; ///< what comes next is typed after it, not into what it opened
    };

    /// The next key is due even while this one keeps a dialog open.
    void Next(bool &typed)
    {
        QTimer::singleShot(0, [this, &typed] {
            if (m_steps.empty()) {
                typed = true;
                return;
            }
            const Step step = std::move(m_steps.front());
            m_steps.pop_front();
            Activate();
            if (step.awaits)
                return step.act(), Next(typed);
            Next(typed);
            step.act();
        });
    }

    /// What a window manager does when a dialog comes or goes.
    static void Activate()
    {
        QWidget *window = QApplication::activeModalWidget();
        for (QWidget *other : QApplication::topLevelWidgets())
            if (!window && other->isVisible() && other->isWindow())
                window = other;
        if (window && !window->isActiveWindow()) {
            QApplication::setActiveWindow(window);
            EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        }
    }

    static QWidget *Focus()
    {
        QWidget *focus = QApplication::focusWidget();
        return focus ? focus : QApplication::activeWindow();
    }

    std::deque<Step> m_steps;
};
