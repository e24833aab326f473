#pragma once

#include <QPalette>

namespace vellumo {

/// The palette of a dark desktop, from the two colours of its windows and boxes.
inline QPalette DarkPalette()
{
    QPalette dark(QColor(45, 45, 48), QColor(40, 40, 42));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::AlternateBase, QColor(38, 38, 40));
    dark.setColor(QPalette::Link, QColor(110, 170, 250));
    dark.setColor(QPalette::Highlight, QColor(50, 100, 170));
    return dark;
}

/// White and yellow on black, with a link that is hard to read.
inline QPalette HighContrastPalette()
{
    QPalette black(Qt::black, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        black.setColor(role, Qt::white);
    black.setColor(QPalette::Base, Qt::black);
    black.setColor(QPalette::AlternateBase, Qt::black);
    black.setColor(QPalette::Link, Qt::blue);
    black.setColor(QPalette::Highlight, Qt::yellow);
    black.setColor(QPalette::HighlightedText, Qt::black);
    return black;
}

} // namespace vellumo
