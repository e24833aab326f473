#pragma once

#include <QWidget>

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

} // namespace vellumo
