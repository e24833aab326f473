#pragma once

#include <QIcon>
#include <QString>

class QPalette;

namespace vellumo {

// The program's own pictures, drawings that are sharp in every size. Numbers: the step marks, the
// handheld's screens 103 to 112, one for each type of question, and the program's picture 113.

inline constexpr int StepMarkInvalid = 101, StepMarkValid = 102;
inline constexpr int ProgramPicture = 113;

enum class Drawing {
    StepBack,
    StepNext,
    NewProject,
    SaveProject,
    OpenProject,
    AddQuestion,
    EditQuestion,
    DeleteQuestion,
    MoveUp,
    MoveDown,
    DuplicateQuestion,
    Browse,
    Review,
    Create,
    AddItem,
    RemoveItem,
    ItemUp,
    ItemDown,
    Help,
    Splash,  ///< 480 by 240, on a ground of its own
    Welcome, ///< 120 by 240, on a ground of its own
};

/// The drawing's place in the resources, also for window files; empty for any other number.
QString PicturePath(int number);
QString PicturePath(Drawing drawing);

/// A null icon for a number that has no picture.
QIcon Picture(int number);

/// StepBack and StepNext have a picture of their own for a disabled button.
QIcon Picture(Drawing drawing);

QIcon ProgramIcon();

/// The palette for what is laid over a screen of the handheld: its ink on its grey-green ground,
/// which are the same whatever the colours of the desktop.
QPalette ScreenPalette();

} // namespace vellumo
