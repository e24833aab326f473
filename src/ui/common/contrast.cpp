#include "ui/common/contrast.h"

#include <algorithm>
#include <cmath>

namespace vellumo {
namespace {

double Luminance(const QColor &colour)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor Mixed(const QColor &from, const QColor &to, int percent)
{
    const auto part = [percent](int a, int b) { return a + (b - a) * percent / 100; };
    return {part(from.red(), to.red()), part(from.green(), to.green()),
            part(from.blue(), to.blue())};
}

} // namespace

double Contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

double LeastContrast(const QColor &colour, std::initializer_list<QColor> grounds)
{
    double least = 21;
    for (const QColor &ground : grounds)
        least = std::min(least, Contrast(colour, ground));
    return least;
}

QColor Legible(const QColor &wanted, std::initializer_list<QColor> grounds, double contrast)
{
    const QColor black(Qt::black), white(Qt::white);
    const QColor end =
        LeastContrast(black, grounds) >= LeastContrast(white, grounds) ? black : white;
    constexpr int step = 5; // percent
    for (int percent = 0; percent < 100; percent += step) {
        const QColor colour = Mixed(wanted, end, percent);
        if (LeastContrast(colour, grounds) >= contrast)
            return colour;
    }
    return end;
}

} // namespace vellumo
