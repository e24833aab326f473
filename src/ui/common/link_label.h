#pragma once

#include <QLabel>

namespace vellumo {

/// Words of a text that lead to a page of the help: underlined, in the palette's link colour, with
/// a hand cursor, and reached by Tab; a click, Enter or the space bar follow the link. Its text is
/// shown as it stands.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LinkLabel(QWidget *parent = nullptr);

signals:
    void Followed();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace vellumo
