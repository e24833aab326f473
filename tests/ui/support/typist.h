#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <bit>
#include <deque>
#include <functional>

namespace vellumo {

/// Types a prepared text on the keyboard and nothing else, also into the dialogs that open on the
/// way: each key goes to whatever has the focus then.
class Typist
{
public:
    void Text(const QString &text)
    {
        m_letters += text.size();
        m_steps.push_back({[text] { QTest::keyClicks(Focus(), text); }});
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {})
    {
        m_keys += 1 + std::popcount(static_cast<quint32>(held.toInt()));
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
                ++m_keys;
            }
            GiveUp(std::string("Tab never reaches ") + name);
        }});
    }
    /// Rests the hands until the screen shows something, for ten seconds at most.
    void Await(const char *what, std::function<bool()> shown)
    {
        m_steps.push_back({{}, std::move(shown), what});
    }

    /// Types it all; false when the dialogs did not close at its end.
    bool Run()
    {
        Next(0);
        return QTest::qWaitFor([&] { return m_typed && !QApplication::activeModalWidget(); },
                               60'000);
    }

    /// What was pressed beside the letters of texts, with Tab, Shift, Ctrl and Alt; after a run.
    qsizetype keys() const { return m_keys; }
    qsizetype letters() const { return m_letters; }

private:
    /// Either an act, or something to wait for.
    struct Step {
        std::function<void()> act;
        std::function<bool()> shown = {};
        const char *what = "";
    };

    /// The next step is due even while this one keeps a dialog open.
    void Next(int milliseconds)
    {
        QTimer::singleShot(milliseconds, [this] {
            if (m_steps.empty()) {
                m_typed = true;
                return;
            }
            Activate();
            if (m_steps.front().shown)
                return Wait(m_steps.front());
            const Step step = std::move(m_steps.front());
            m_steps.pop_front();
            Next(0);
            step.act();
        });
    }

    void Wait(const Step &step)
    {
        if (!m_waited.isValid())
            m_waited.start();
        if (!step.shown() && m_waited.elapsed() < 10'000)
            return Next(5);
        if (m_waited.elapsed() >= 10'000)
            return GiveUp(std::string("never seen: ") + step.what);
        m_waited.invalidate();
        m_steps.pop_front();
        Next(0);
    }

    void GiveUp(const std::string &why)
    {
        ADD_FAILURE() << why << ", in "
                      << QApplication::activeWindow()->windowTitle().toStdString();
        m_steps.clear();
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
    QElapsedTimer m_waited;
    bool m_typed = false;
    qsizetype m_keys = 0, m_letters = 0;
};

} // namespace vellumo
