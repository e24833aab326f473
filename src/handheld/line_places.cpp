#include "handheld/line_places.h"

#include "handheld/question_fit.h"
#include "handheld/screen_geometry.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr quint32 standard = 0, bold = 1;

} // namespace

constinit const LinePlace titlePlace = {"title-too-wide"_L1, screen::titleWidth, bold,
                                        "a button covers the rest"_L1};
constinit const LinePlace listPlace = {"item-too-wide"_L1, screen::listItemWidth, standard,
                                       "the opened list leaves the screen"_L1};
constinit const LinePlace captionPlace = {"caption-too-wide"_L1, screen::captionWidth, standard,
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
