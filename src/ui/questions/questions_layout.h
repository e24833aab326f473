#pragma once

#include <QSize>

namespace vellumo {

namespace Ui {
class StepQuestions;
}

/// Where the controls of step 2 are. Its content has a size of its own within what scrolls, which
/// follows the window only while that has 790 by 576 pixels, or its screen not as many.
class QuestionsLayout
{
public:
    /// The controls must live as long.
    explicit QuestionsLayout(const Ui::StepQuestions &controls) : m_controls(controls) {}

    /// Fits the controls to their room; in a window that is not large enough they keep their
    /// places.
    void LayOutIfLargeEnough();

    /// Fits them to their room in any window, unless they have been.
    void LayOutOnce();

    /// Has them fit when something else needs room among them.
    void FitContent();

    /// What is to be seen of them at least, in pixels: the header of the list and two rows, with
    /// the bar below.
    int LeastView() const;

private:
    bool IsLargeEnough() const;
    void LayOut();
    void Fit(QSize size);

    const Ui::StepQuestions &m_controls;
    bool m_laidOut = false;
};

} // namespace vellumo
