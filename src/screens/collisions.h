#pragma once

#include "readback/form.h"

#include <QRect>
#include <QString>

namespace vellumo {

/// A part of a text that a person does not see, or sees with something else over it.
struct Collision {
    QRect place; ///< on the screen
    QString reason;
};

/// What of the title, the question and the captions of check boxes meets an object, or leaves its
/// place or the screen. At most 50, of which the last then tells that there are more.
QList<Collision> FindCollisions(const Form &form);

/// What of an opened list leaves the screen.
QList<Collision> FindCollisionsOfList(const FormObject &list);

} // namespace vellumo
