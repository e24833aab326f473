#include "screens/screen_article.h"

#include "screens/form_parts.h"
#include "screens/page_elements.h"
#include "screens/screen_drawing.h"
#include "screens/screen_text.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

// How many of them have room beside a screen on paper; the others are counted there.
constexpr qsizetype printedItems = 8, printedMisfits = 3;

void WriteDrawings(QXmlStreamWriter &page, const Screen &screen, const DrawingContext &context,
                   const QString &identifier)
{
    const QString title =
        u"Screen %1: %2"_s.arg(QString::number(screen.number), ShownText(screen.title));
    StartElement(page, "div"_L1, "drawings"_L1);
    DrawScreen(page, context, {identifier, title, DescribeForm(context.form)});
    if (const FormObject *list = PopupListOf(context.form))
        DrawOpenedList(page, context, *list,
                       {identifier + u"-list"_s, title + u", the list opened"_s,
                        ShownText(screen.items.join(u", "_s))});
    page.writeEndElement();
}

void WriteFact(QXmlStreamWriter &page, const QString &name, const QString &text)
{
    WriteText(page, "dt"_L1, name);
    WriteText(page, "dd"_L1, text);
}

/// Its line feeds are lines on the handheld, too.
void WriteQuestion(QXmlStreamWriter &page, const QString &question)
{
    WriteText(page, "dt"_L1, u"Question"_s);
    StartElement(page, "dd"_L1, "question"_L1);
    bool first = true;
    for (const QString &line : question.split(u'\n')) {
        if (!std::exchange(first, false))
            page.writeEmptyElement("br"_L1);
        page.writeCharacters(ShownText(line));
    }
    page.writeEndElement();
}

/// Writes, for paper alone, how many of so many are not printed.
void WriteUnprinted(QXmlStreamWriter &page, qsizetype count, qsizetype printed,
                    QLatin1StringView look)
{
    if (count > printed)
        WriteText(page, "p"_L1, u"... and %1 more"_s.arg(count - printed), look);
}

void WriteItems(QXmlStreamWriter &page, const QStringList &items)
{
    WriteText(page, "dt"_L1, u"Items (%1)"_s.arg(items.size()));
    page.writeStartElement("dd"_L1);
    page.writeStartElement("ol"_L1);
    page.writeAttribute("tabindex"_L1, "0"_L1); // a long list scrolls by the keyboard, too
    for (qsizetype i = 0; i < items.size(); ++i)
        WriteText(page, "li"_L1, items[i], i < printedItems ? ""_L1 : "unprinted"_L1);
    page.writeEndElement();
    WriteUnprinted(page, items.size(), printedItems, "printed"_L1);
    page.writeEndElement();
}

void WriteFacts(QXmlStreamWriter &page, const Screen &screen)
{
    page.writeStartElement("dl"_L1);
    WriteQuestion(page, screen.question);
    WriteFact(page, u"Type"_s, screen.type);
    WriteFact(page, u"Column"_s, screen.columnName);
    if (!screen.items.isEmpty())
        WriteItems(page, screen.items);
    page.writeEndElement();
}

void WriteMisfits(QXmlStreamWriter &page, const QStringList &misfits)
{
    for (qsizetype i = 0; i < misfits.size(); ++i)
        WriteText(page, "p"_L1, misfits[i],
                  i < printedMisfits ? "misfit"_L1 : "misfit unprinted"_L1);
    WriteUnprinted(page, misfits.size(), printedMisfits, "misfit printed"_L1);
}

} // namespace

void WriteArticle(QXmlStreamWriter &page, const Screen &screen, int count,
                  const QString &identifier)
{
    page.writeStartElement("article"_L1);
    WriteText(page, "h2"_L1, u"%1. %2"_s.arg(QString::number(screen.number), screen.title));
    if (screen.form)
        WriteDrawings(page, screen, {*screen.form, count}, identifier);
    StartElement(page, "div"_L1, "about"_L1);
    if (!screen.form)
        WriteText(page, "p"_L1, u"This form is damaged: "_s + screen.form.error().text, "fault"_L1);
    WriteFacts(page, screen);
    WriteMisfits(page, screen.misfits);
    page.writeEndElement();
    page.writeEndElement();
}

} // namespace vellumo
