#include "ui/common/drawing_engine.h"

#include "ui/common/drawing_file.h"

#include <QApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

Q_IMPORT_PLUGIN(DrawingPlugin)

using namespace Qt::StringLiterals;

namespace vellumo {

std::shared_ptr<DrawingFile> DrawingFiles::At(const QString &path)
{
    auto &file = m_files[path];
    if (!file)
        file = std::make_shared<DrawingFile>(path);
    return file->renderer.isValid() ? file : nullptr;
}

void DrawingEngine::addFile(const QString &path, const QSize &, QIcon::Mode mode, QIcon::State)
{
    if (auto drawing = m_files->At(path))
        m_drawings[mode] = std::move(drawing);
}

bool DrawingEngine::isNull()
{
    return !DrawingFor(QIcon::Normal);
}

QSize DrawingEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    const DrawingFile *drawing = DrawingFor(mode);
    return drawing ? drawing->renderer.defaultSize().scaled(size, Qt::KeepAspectRatio) : QSize();
}

QPixmap DrawingEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const QSize actual = actualSize(size, mode, state);
    if (actual.isEmpty())
        return {};
    DrawingFile &drawing = *DrawingFor(mode);
    const QPalette palette = QGuiApplication::palette();
    const QString key = u"%1 %2x%3 %4 %5 %6"_s.arg(drawing.path)
                            .arg(actual.width())
                            .arg(actual.height())
                            .arg(mode)
                            .arg(palette.cacheKey())
                            .arg(QGuiApplication::layoutDirection());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = Drawn(drawing, actual);
    if (!m_drawings[mode]) {
        QStyleOption option;
        option.palette = palette;
        pixmap = QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
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

DrawingFile *DrawingEngine::DrawingFor(QIcon::Mode mode) const
{
    const auto &own = m_drawings[mode];
    return own ? own.get() : m_drawings[QIcon::Normal].get();
}

QIconEngine *DrawingPlugin::create(const QString &)
{
    return new DrawingEngine(m_files); // QIcon adds the file itself
}

} // namespace vellumo
