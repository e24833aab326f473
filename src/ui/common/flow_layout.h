#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace vellumo {

/// Sets its items side by side and goes on below where the line is full. What is left of a line
/// goes to the spacers and widgets that expand, and what followed a spacer stays at the end; an
/// item that is wider than a whole line gets that line, and a label that wraps breaks there. It
/// mirrors with the layout direction.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    /// Of all items in one line.
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect &rect) override;

private:
    struct Line;
    std::vector<Line> LinesOf(int width) const;
    void Place(const Line &line, const QRect &area, int top) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace vellumo
