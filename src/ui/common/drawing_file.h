#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>
#include <QSvgRenderer>

namespace vellumo {

/// A drawing and what is known of it.
struct DrawingFile {
    /// A file that is no drawing leaves a renderer that is not valid.
    explicit DrawingFile(const QString &path);

    QString path;
    QByteArray text; ///< of the file, SVG in UTF-8
    QSvgRenderer renderer;
};

/// The drawing in a size in pixels. A sign stands out from the palette's windows and buttons, but
/// for one of a disabled button, and one that points to a step points the way of the layout
/// direction. A larger drawing has a ground of its own and stays as it is.
QPixmap Drawn(DrawingFile &drawing, const QSize &size);

} // namespace vellumo
