#pragma once

#include <QColor>

#include <initializer_list>

namespace vellumo {

inline constexpr double textContrast = 4.5, pictureContrast = 3;

/// How much two opaque colours differ, from 1 for the same to 21 for black on white: the contrast
/// ratio of the Web Content Accessibility Guidelines.
double Contrast(const QColor &one, const QColor &other);

/// The least contrast of a colour with any of the grounds.
double LeastContrast(const QColor &colour, std::initializer_list<QColor> grounds);

/// A colour that has the contrast with all grounds: the wanted one, or else the nearest on its way
/// to black or white, whichever differs more from the grounds; where the grounds leave no such
/// colour, black or white.
QColor Legible(const QColor &wanted, std::initializer_list<QColor> grounds, double contrast);

} // namespace vellumo
