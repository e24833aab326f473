#pragma once

#include <QList>
#include <QWidget>

#include <functional>

class QAbstractButton;

namespace vellumo {

/// The buttons that lead on and out of a window, in a layout that has a height for each width. In a
/// low window their text becomes smaller, for as long as it can be read, so that they leave most of
/// the window to what they are about.
class ButtonLine : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Fit();
};

/// Gives the buttons of a line the line's text, or the largest smaller one that fits; no smaller
/// one than can be read.
void ShrinkText(const QWidget &line, const QList<QAbstractButton *> &buttons,
                const std::function<bool()> &fits);

} // namespace vellumo
