#include "ui/common/drawing_engine.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

Q_IMPORT_PLUGIN(DrawingPlugin)

using namespace Qt::StringLiterals;

namespace vellumo {

void DrawingEngine::addFile(const QString &path, const QSize &, QIcon::Mode mode, QIcon::State)
{
    auto drawing = std::make_shared<QSvgRenderer>(path);
    if (drawing->isValid())
        m_drawings[mode] = std::move(drawing);
}

bool DrawingEngine::isNull()
{
    return !DrawingFor(QIcon::Normal);
}

QSize DrawingEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    const QSvgRenderer *drawing = DrawingFor(mode);
    return drawing ? drawing->defaultSize().scaled(size, Qt::KeepAspectRatio) : QSize();
}

QPixmap DrawingEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(actualSize(size, mode, state));
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    DrawingFor(mode)->render(&painter);
    painter.end();
    if (m_drawings[mode])
        return pixmap;

    QStyleOption option;
    option.palette = QGuiApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
}

void DrawingEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                          QIcon::State state)
{
    // In the pixels of the device, which drawPixmap fits into the rectangle.
    const qreal ratio = painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
}

QIconEngine *DrawingEngine::clone() const
{
    return new DrawingEngine(*this);
}

QString DrawingEngine::key() const
{
    return u"drawing"_s;
}

QSvgRenderer *DrawingEngine::DrawingFor(QIcon::Mode mode) const
{
    const auto &own = m_drawings[mode];
    return own ? own.get() : m_drawings[QIcon::Normal].get();
}

QIconEngine *DrawingPlugin::create(const QString &)
{
    return new DrawingEngine; // QIcon adds the file itself
}

} // namespace vellumo
