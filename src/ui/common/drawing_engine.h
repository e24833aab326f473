#pragma once

#include <QIconEngine>
#include <QIconEnginePlugin>

#include <QHash>

#include <array>
#include <memory>

namespace vellumo {

struct DrawingFile;

/// The files of drawings, each read once.
class DrawingFiles
{
public:
    /// Null for a file that is no drawing.
    std::shared_ptr<DrawingFile> At(const QString &path);

private:
    QHash<QString, std::shared_ptr<DrawingFile>> m_files;
};

/// Draws an icon at the very size that is asked for, from a drawing of its own for some modes and
/// from that of the normal mode, altered by the style, for the others. Drawings are SVG files. A
/// sign of up to 32 by 32 pixels that would not stand out from windows and buttons is drawn in one
/// colour that does. Each picture is drawn once, as long as the toolkit keeps it.
class DrawingEngine : public QIconEngine
{
public:
    explicit DrawingEngine(std::shared_ptr<DrawingFiles> files) : m_files(std::move(files)) {}

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
    DrawingFile *DrawingFor(QIcon::Mode mode) const;

    std::shared_ptr<DrawingFiles> m_files;
    std::array<std::shared_ptr<DrawingFile>, QIcon::Selected + 1> m_drawings;
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

private:
    std::shared_ptr<DrawingFiles> m_files = std::make_shared<DrawingFiles>();
};

} // namespace vellumo
