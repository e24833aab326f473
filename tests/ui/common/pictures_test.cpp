#include "ui/common/pictures.h"

#include "support/print.h"
#include "ui/common/picture_box.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

const Drawing buttonDrawings[] = {
    Drawing::StepBack,
    Drawing::StepNext,
    Drawing::NewProject,
    Drawing::SaveProject,
    Drawing::OpenProject,
    Drawing::AddQuestion,
    Drawing::EditQuestion,
    Drawing::DeleteQuestion,
    Drawing::MoveUp,
    Drawing::MoveDown,
    Drawing::DuplicateQuestion,
    Drawing::Browse,
    Drawing::Review,
    Drawing::Create,
    Drawing::AddItem,
    Drawing::RemoveItem,
    Drawing::ItemUp,
    Drawing::ItemDown,
    Drawing::Help,
};

bool IsDrawn(const QIcon &icon, QSize size, qreal ratio)
{
    const QPixmap pixmap = icon.pixmap(size, ratio);
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    if (image.size() != size * ratio)
        return false;
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    return colours.size() > 3;
}

double Luminance(QColor colour)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(QColor one, QColor other)
{
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(Pictures, AreDrawnInEverySize)
{
    for (int number = StepMarkInvalid; number <= ProgramPicture; ++number) {
        SCOPED_TRACE(number);
        for (const qreal ratio : {1.0, 2.0})
            EXPECT_TRUE(IsDrawn(Picture(number), {20, 20}, ratio));
    }
    for (const Drawing drawing : buttonDrawings) {
        SCOPED_TRACE(PicturePath(drawing).toStdString());
        for (const qreal ratio : {1.0, 2.0})
            EXPECT_TRUE(IsDrawn(Picture(drawing), {24, 24}, ratio));
    }
    EXPECT_TRUE(IsDrawn(Picture(Drawing::Splash), {480, 240}, 1));
    EXPECT_TRUE(IsDrawn(Picture(Drawing::Welcome), {120, 240}, 1));
}

TEST(Pictures, OfTheTypesDiffer)
{
    std::set<QByteArray> screens;
    for (int number = 103; number <= 112; ++number) {
        QFile file(PicturePath(number));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        screens.insert(file.readAll());
    }
    EXPECT_EQ(screens.size(), 10u);
}

TEST(Pictures, HaveNoneForOtherNumbers)
{
    for (const int number : {-1, 0, 100, 114}) {
        EXPECT_TRUE(Picture(number).isNull());
        EXPECT_EQ(PicturePath(number), QString());
    }
}

TEST(Pictures, OfStepsDifferWhereTheyAreOff)
{
    for (const Drawing drawing : {Drawing::StepBack, Drawing::StepNext}) {
        const QIcon icon = Picture(drawing);
        EXPECT_NE(icon.pixmap(24, QIcon::Normal).toImage(),
                  icon.pixmap(24, QIcon::Disabled).toImage());
    }
}

TEST(Pictures, OfButtonsStandOutOnLightAndDark)
{
    const QRegularExpression colour(u"(?:fill|stroke)=\"(#[0-9a-f]{6})\""_s);
    for (const Drawing drawing : buttonDrawings) {
        SCOPED_TRACE(PicturePath(drawing).toStdString());
        QFile file(PicturePath(drawing));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        auto found = colour.globalMatch(QString::fromUtf8(file.readAll()));
        ASSERT_TRUE(found.hasNext());
        while (found.hasNext()) {
            const QColor drawn(found.next().captured(1));
            if (drawn == QColor(Qt::white))
                continue; // lies on a coloured ground of its own
            EXPECT_GE(Contrast(drawn, QColor(0xef, 0xef, 0xef)), 3.0);
            EXPECT_GE(Contrast(drawn, QColor(0x2b, 0x2b, 0x2b)), 3.0);
        }
    }
}

TEST(PictureBox, ShowsAPictureAndForgetsIt)
{
    PictureBox box;
    box.SetPicture(112);
    EXPECT_TRUE(box.ShowsPicture());
    box.resize(320, 160);
    EXPECT_EQ(box.PictureArea(), QRect(80, 0, 160, 160));
    box.Clear();
    EXPECT_FALSE(box.ShowsPicture());
    EXPECT_EQ(box.sizeHint(), QSize(160, 160)) << "its place is kept";
    box.SetPicture(999);
    EXPECT_FALSE(box.ShowsPicture());
}

} // namespace
