#include "ui/common/pictures.h"

#include "support/print.h"
#include "ui/common/contrast.h"
#include "ui/common/picture_box.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <algorithm>
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

/// Takes the plug-ins away before the first picture is asked for; the window system has its own.
class WithoutPlugIns : public testing::Environment
{
    void SetUp() override { QCoreApplication::setLibraryPaths({}); }
};

const auto *const withoutPlugIns = testing::AddGlobalTestEnvironment(new WithoutPlugIns);

std::set<QRgb> ColoursOf(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    std::set<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    return colours;
}

bool IsDrawn(const QIcon &icon, QSize size, qreal ratio)
{
    const QPixmap pixmap = icon.pixmap(size, ratio);
    return pixmap.size() == size * ratio && ColoursOf(pixmap).size() > 3;
}

QByteArray Contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// What the pattern's first group matches in the file, each once.
std::set<QString> FindAll(const QString &pattern, const QString &path)
{
    const QRegularExpression expression(pattern);
    std::set<QString> found;
    for (const auto &match : expression.globalMatch(QString::fromUtf8(Contents(path))))
        found.insert(match.captured(1));
    return found;
}

std::set<QString> ColoursInFile(const QString &path)
{
    auto colours = FindAll(u"(?:fill|stroke)=\"(#[0-9a-f]{6})\""_s, path);
    EXPECT_FALSE(colours.empty()) << path.toStdString();
    return colours;
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
    for (int number = 103; number <= 112; ++number)
        screens.insert(Contents(PicturePath(number)));
    EXPECT_EQ(screens.size(), 10u);
}

TEST(Pictures, HaveNoneForOtherNumbers)
{
    for (const int number : {-1, 0, 100, 114}) {
        EXPECT_TRUE(Picture(number).isNull());
        EXPECT_EQ(PicturePath(number), QString());
    }
}

TEST(Pictures, OfStepsHaveTheirOwnWhereTheyAreOff)
{
    for (const Drawing drawing : {Drawing::StepBack, Drawing::StepNext}) {
        const QIcon own(PicturePath(drawing).replace(u".drawing"_s, u"_disabled.drawing"_s));
        EXPECT_EQ(Picture(drawing).pixmap(24, QIcon::Disabled).toImage(), own.pixmap(24).toImage());
    }
}

TEST(Pictures, OfButtonsDifferWhereTheyAreOff)
{
    for (const Drawing drawing : buttonDrawings) {
        SCOPED_TRACE(PicturePath(drawing).toStdString());
        const QIcon icon = Picture(drawing);
        EXPECT_NE(icon.pixmap(24, QIcon::Normal).toImage(),
                  icon.pixmap(24, QIcon::Disabled).toImage());
    }
}

TEST(Pictures, OfButtonsStandOutOnLightAndDark)
{
    for (const Drawing drawing : buttonDrawings) {
        SCOPED_TRACE(PicturePath(drawing).toStdString());
        for (const QString &name : ColoursInFile(PicturePath(drawing))) {
            const QColor drawn(name);
            if (drawn == QColor(Qt::white))
                continue; // lies on a coloured ground of its own
            EXPECT_GE(Contrast(drawn, QColor(0xef, 0xef, 0xef)), 3.0);
            EXPECT_GE(Contrast(drawn, QColor(0x2b, 0x2b, 0x2b)), 3.0);
        }
    }
}

TEST(Pictures, OfButtonsStandOutOnAnyGround)
{
    const QPalette before = QApplication::palette();
    for (const QColor &ground : {QColor(Qt::white), QColor(Qt::black), QColor(128, 128, 128),
                                 QColor(59, 130, 210), QColor(255, 255, 0), QColor(90, 0, 0)}) {
        QApplication::setPalette(QPalette(ground));
        for (const Drawing drawing : buttonDrawings) {
            SCOPED_TRACE(ground.name().toStdString() + ' ' + PicturePath(drawing).toStdString());
            double most = 0;
            for (const QRgb pixel : ColoursOf(Picture(drawing).pixmap(24, 24)))
                if (qAlpha(pixel) == 255)
                    most = std::max(most, Contrast(QColor(pixel), ground));
            EXPECT_GE(most, pictureContrast);
        }
    }
    QApplication::setPalette(before);
}

TEST(Pictures, OfButtonsKeepTheirColoursOnDarkOnes)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x53, 0x53, 0x53), QColor(0x35, 0x35, 0x35)));
    const QColor painted(0x66, 0x66, 0x66); // the button, as the style lights it
    for (const Drawing drawing : buttonDrawings) {
        SCOPED_TRACE(PicturePath(drawing).toStdString());
        // Large enough that the thinnest outline covers whole pixels.
        const std::set<QRgb> drawn = ColoursOf(Picture(drawing).pixmap(640, 640));
        size_t standing = 0;
        for (const QRgb pixel : drawn)
            standing += qAlpha(pixel) == 255 && Contrast(QColor(pixel), painted) >= pictureContrast;
        EXPECT_GE(standing, ColoursInFile(PicturePath(drawing)).size() - 1) << "all but white";
    }
    QApplication::setPalette(before);
}

TEST(Pictures, OfStepsPointTheWayOfTheWindow)
{
    const QImage back = Picture(Drawing::StepBack).pixmap(24, 24).toImage();
    const QImage next = Picture(Drawing::StepNext).pixmap(24, 24).toImage();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(Picture(Drawing::StepBack).pixmap(24, 24).toImage(), back.mirrored(true, false));
    EXPECT_EQ(Picture(Drawing::StepNext).pixmap(24, 24).toImage(), next.mirrored(true, false));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(Pictures, HaveAllTheirColoursWithoutAPlugIn)
{
    ASSERT_FALSE(QImageReader::supportedImageFormats().contains("svg"));
    QDirIterator drawings(u":/pictures"_s);
    ASSERT_TRUE(drawings.hasNext());
    while (drawings.hasNext()) {
        const QString path = drawings.next();
        SCOPED_TRACE(path.toStdString());
        // Large enough that the thinnest outline covers whole pixels.
        const std::set<QRgb> drawn = ColoursOf(QIcon(path).pixmap(640, 640));
        for (const QString &colour : ColoursInFile(path))
            EXPECT_TRUE(drawn.contains(QColor(colour).rgba())) << colour.toStdString();
    }
}

TEST(Pictures, OfWindowFilesAreThere)
{
    QDirIterator files(QStringLiteral(WINDOW_FILES), {u"*.ui"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    std::set<QString> named;
    while (files.hasNext())
        named.merge(FindAll(u"(:/pictures/[^<]*)"_s, files.next()));
    EXPECT_GT(named.size(), 10u);
    for (const QString &path : named)
        EXPECT_TRUE(IsDrawn(QIcon(path), {24, 24}, 1)) << path.toStdString();
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
