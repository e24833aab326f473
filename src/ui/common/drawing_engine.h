#pragma once

#include <QIconEngine>
#include <QIconEnginePlugin>

#include <array>
#include <memory>

class QSvgRenderer;

namespace vellumo {

/// Draws an icon at the very size that is asked for, from a drawing of its own for some modes and
/// from that of the normal mode, altered by the style, for the others. Drawings are SVG files.
class DrawingEngine : public QIconEngine
{
public:
    /// The mode is all that tells one drawing from another; size and state are not looked at.
    void addFile(const QString &path, const QSize &size, QIcon::Mode mode,
                 QIcon::State state) override;

    bool isNull() override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;

    QIconEngine *clone() const override;
    QString key() const override;

private:
    QSvgRenderer *DrawingFor(QIcon::Mode mode) const;

    std::array<std::shared_ptr<QSvgRenderer>, QIcon::Selected + 1> m_drawings;
};

/// Makes each QIcon of a file with the suffix "drawing" one of DrawingEngine's, whether code or a
/// window file names it. It is linked into the programs: with the suffix "svg" a plug-in of the
/// system would come first, and where there is none, nothing would be drawn.
class DrawingPlugin : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "drawing_engine.json")

public:
    QIconEngine *create(const QString &path) override;
};

} // namespace vellumo
