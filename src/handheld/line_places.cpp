#include "handheld/line_places.h"

#include "handheld/font_widths.h"
#include "handheld/question_fit.h"
#include "handheld/screen_geometry.h"

using namespace Qt::StringLiterals;

namespace vellumo {

constinit const LinePlace titlePlace = {"title-too-wide"_L1, screen::titleWidth, boldFont,
                                        "a button covers the rest"_L1};
constinit const LinePlace listPlace = {"item-too-wide"_L1, screen::listItemWidth, standardFont,
                                       "the opened list leaves the screen"_L1};
constinit const LinePlace captionPlace = {"caption-too-wide"_L1, screen::captionWidth, standardFont,
                                          "the rest is cut off"_L1};

QString MisfitIn(const LinePlace &place, QByteArrayView text)
{
    const QString misfit = LineMisfit(text, place.width, place.font);
    return misfit.isEmpty() ? misfit : u"it %1; %2"_s.arg(misfit, place.then);
}

QString LetterMisfit(QByteArrayView text)
{
    if (!text.contains('\x8E') && !text.contains('\x9E'))
        return {};
    return u"the handheld has no Z or z with a caron and shows another sign or none"_s;
}

} // namespace vellumo
