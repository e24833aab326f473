#include "ui/common/pictures.h"

#include <QPalette>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

struct DrawingFile {
    Drawing drawing;
    QLatin1StringView name;
    QLatin1StringView disabledName = {}; // empty = the style makes one
};

constexpr DrawingFile drawingFiles[] = {
    {Drawing::StepBack, "step_back"_L1, "step_back_disabled"_L1},
    {Drawing::StepNext, "step_next"_L1, "step_next_disabled"_L1},
    {Drawing::NewProject, "new_project"_L1},
    {Drawing::SaveProject, "save_project"_L1},
    {Drawing::OpenProject, "open_project"_L1},
    {Drawing::AddQuestion, "add_question"_L1},
    {Drawing::EditQuestion, "edit_question"_L1},
    {Drawing::DeleteQuestion, "delete_question"_L1},
    {Drawing::MoveUp, "move_up"_L1},
    {Drawing::MoveDown, "move_down"_L1},
    {Drawing::DuplicateQuestion, "duplicate_question"_L1},
    {Drawing::Browse, "browse"_L1},
    {Drawing::Review, "review"_L1},
    {Drawing::Create, "create"_L1},
    {Drawing::AddItem, "add_item"_L1},
    {Drawing::RemoveItem, "remove_item"_L1},
    {Drawing::ItemUp, "item_up"_L1},
    {Drawing::ItemDown, "item_down"_L1},
    {Drawing::Help, "help"_L1},
    {Drawing::Splash, "splash"_L1},
    {Drawing::Welcome, "welcome"_L1},
};

QString PathOf(QStringView name)
{
    return u":/pictures/%1.drawing"_s.arg(name);
}

const DrawingFile &FileOf(Drawing drawing)
{
    const auto *file = std::find_if(std::begin(drawingFiles), std::end(drawingFiles),
                                    [drawing](const auto &row) { return row.drawing == drawing; });
    Q_ASSERT(file != std::end(drawingFiles));
    return *file;
}

} // namespace

QString PicturePath(int number)
{
    if (number < StepMarkInvalid || number > ProgramPicture)
        return {};
    return PathOf(QString::number(number));
}

QString PicturePath(Drawing drawing)
{
    return PathOf(QString(FileOf(drawing).name));
}

QIcon Picture(int number)
{
    const QString path = PicturePath(number);
    return path.isEmpty() ? QIcon() : QIcon(path);
}

QIcon Picture(Drawing drawing)
{
    const DrawingFile &file = FileOf(drawing);
    QIcon icon(PathOf(QString(file.name)));
    if (!file.disabledName.isEmpty())
        icon.addFile(PathOf(QString(file.disabledName)), {}, QIcon::Disabled);
    return icon;
}

QIcon ProgramIcon()
{
    return Picture(ProgramPicture);
}

QPalette ScreenPalette()
{
    const QColor ground(0xc6, 0xd2, 0xb6), ink(0x24, 0x32, 0x22);
    QPalette palette(ink, ground, ground, ink, ground.darker(130), ink, ink, ground, ground);
    palette.setColor(QPalette::Highlight, ink);
    palette.setColor(QPalette::HighlightedText, ground);
    return palette;
}

} // namespace vellumo
