#pragma once

#include "screens/object_drawing.h"

namespace vellumo {

/// What a screen is for those who do not see it.
struct ScreenWords {
    QString identifier; ///< of the drawing on its page; letters, digits and hyphens
    QString title;
    QString description;
};

/// Writes a form as the handheld shows it first, as an element svg whose unit is a pixel. What
/// meets something else or leaves the screen is marked.
void DrawScreen(QXmlStreamWriter &page, const DrawingContext &context, const ScreenWords &words);

/// Likewise with a list opened, which lies over the others.
void DrawOpenedList(QXmlStreamWriter &page, const DrawingContext &context, const FormObject &list,
                    const ScreenWords &words);

/// What stands on a form, in words.
QString DescribeForm(const Form &form);

} // namespace vellumo
