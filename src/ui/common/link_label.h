#pragma once

#include <QLabel>

namespace vellumo {

/// Words of a text that lead to a page of the help: underlined, with a hand cursor, and reached by
/// Tab; a click, Enter or the space bar follow the link. They are in the palette's link colour,
/// lighter or darker where that would not be legible. Its text is shown as it stands. Assistive
/// technology finds a link that can be pressed.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(QWidget *parent = nullptr);

    /// The colour in which the words are drawn.
    QColor Ink() const;

signals:
    void Followed();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace vellumo
