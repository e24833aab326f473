#pragma once

#include <QScrollArea>

namespace vellumo {

/// What lies in a ScrollPage: as high as its texts need in their width, and its lists and boxes at
/// least, before anything scrolls. It has a layout.
class ScrollContent : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    int heightForWidth(int width) const override;
};

/// A part of a window that scrolls where there is no room for it: on the ground of what it lies on,
/// without a frame, and as large as its content where there is room. What gets the focus in it is
/// brought into view, from its beginning where it is larger, and stays there when the page gets
/// another size, until the user scrolls.
class ScrollPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollPage(QWidget *parent = nullptr);
    ~ScrollPage() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Lays the content out and shows the bars that it needs at once, where others would wait for
    /// events to come. For a page that has a content.
    void Settle();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void KeepInView();
    void BringIntoView(const QWidget *focus);
    void BringAcross(const QWidget &focus);
    void BringDown(const QWidget &focus);
    int ValueFor(const QWidget &focus) const;

    bool m_leftByUser = false; ///< who has scrolled since the focus came where it is
};

/// Lets the layouts within a widget that is not shown yet find their sizes anew. A ScrollPage asks
/// for them while its window is being made, and layouts keep what they answered then.
void SettleLayouts(QWidget &widget);

} // namespace vellumo
