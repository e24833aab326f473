#include "screens/page_elements.h"

#include "screens/screen_text.h"

using namespace Qt::StringLiterals;

namespace vellumo {

void StartElement(QXmlStreamWriter &page, QLatin1StringView element, QLatin1StringView look)
{
    page.writeStartElement(element);
    if (!look.isEmpty())
        page.writeAttribute("class"_L1, look);
}

void WriteText(QXmlStreamWriter &page, QLatin1StringView element, const QString &text,
               QLatin1StringView look)
{
    StartElement(page, element, look);
    page.writeCharacters(ShownText(text));
    page.writeEndElement();
}

} // namespace vellumo
