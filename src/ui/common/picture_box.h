#pragma once

#include "ui/common/pictures.h"

#include <QHash>
#include <QLabel>

namespace vellumo {

/// Shows a picture as large as the box lets it, in the middle and in its own proportions, sharp at
/// any device pixel ratio. It asks for the picture's own size, and keeps that place when cleared.
class PictureBox : public QLabel
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget *parent = nullptr);

    /// A number that has no picture clears the box.
    void SetPicture(int number);
    void SetPicture(Drawing drawing);
    void Clear();

    bool ShowsPicture() const { return !m_picture.isNull(); }

    /// The part of the box that the picture covers, in the box's coordinates; empty without one.
    QRect PictureArea() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Known {
        QIcon picture;
        QSize size;
    };
    void Show(const QIcon &picture, const QString &path);

    QHash<QString, Known> m_known; ///< all that were shown, by their paths
    QIcon m_picture;
    QSize m_ownSize;
};

} // namespace vellumo
