#pragma once

#include <QObject>

class QComboBox;

namespace vellumo {

/// Keeps Alt and a letter that chose nothing from becoming text, in every window of the program
/// while it lives.
class StrayLetters : public QObject
{
public:
    explicit StrayLetters(QObject *parent);
    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// The mouse wheel changes the drop-down only while it has the focus, which the wheel does not give
/// it.
void KeepWheelForFocus(QComboBox *box);

} // namespace vellumo
