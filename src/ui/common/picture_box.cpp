#include "ui/common/picture_box.h"

#include <QPainter>
#include <QStyle>
#include <QSvgRenderer>

namespace vellumo {

PictureBox::PictureBox(QWidget *parent) : QLabel(parent) {}

void PictureBox::SetPicture(int number)
{
    Show(Picture(number), PicturePath(number));
}

void PictureBox::SetPicture(Drawing drawing)
{
    Show(Picture(drawing), PicturePath(drawing));
}

void PictureBox::Clear()
{
    m_picture = {};
    update();
}

QRect PictureBox::PictureArea() const
{
    if (!ShowsPicture())
        return {};
    const QSize size = m_ownSize.scaled(contentsRect().size(), Qt::KeepAspectRatio);
    return QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, contentsRect());
}

QSize PictureBox::sizeHint() const
{
    return m_ownSize.isEmpty() ? QLabel::sizeHint() : m_ownSize.grownBy(contentsMargins());
}

QSize PictureBox::minimumSizeHint() const
{
    return sizeHint();
}

void PictureBox::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    const QRect area = PictureArea();
    if (area.isEmpty())
        return;
    QPainter painter(this);
    painter.drawPixmap(area, m_picture.pixmap(area.size(), devicePixelRatioF()));
}

void PictureBox::Show(const QIcon &picture, const QString &path)
{
    m_picture = picture;
    if (ShowsPicture()) {
        Known &known = m_known[path];
        if (known.picture.isNull())
            known = {picture, QSvgRenderer(path).defaultSize()};
        m_picture = known.picture;
        m_ownSize = known.size;
    }
    updateGeometry();
    update();
}

} // namespace vellumo
