#pragma once

#include <QXmlStreamWriter>

namespace vellumo {

/// Begins an element of HTML; look is its class.
void StartElement(QXmlStreamWriter &page, QLatin1StringView element, QLatin1StringView look = {});

/// An element with a text, in which characters that nobody can see are replaced.
void WriteText(QXmlStreamWriter &page, QLatin1StringView element, const QString &text,
               QLatin1StringView look = {});

} // namespace vellumo
