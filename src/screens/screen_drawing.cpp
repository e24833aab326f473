#include "screens/screen_drawing.h"

#include "handheld/font_widths.h"
#include "handheld/screen_geometry.h"
#include "screens/collisions.h"
#include "screens/form_parts.h"
#include "screens/object_place.h"
#include "screens/screen_text.h"
#include "screens/svg_shapes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

void WriteWords(QXmlStreamWriter &svg, QLatin1StringView name, const QString &identifier,
                const QString &text)
{
    svg.writeStartElement(name);
    svg.writeAttribute("id"_L1, identifier);
    svg.writeCharacters(text);
    svg.writeEndElement();
}

void StartDrawing(QXmlStreamWriter &svg, const ScreenWords &words)
{
    const QString title = words.identifier + u"-title"_s, text = words.identifier + u"-text"_s;
    svg.writeStartElement("svg"_L1);
    svg.writeAttribute("class"_L1, "screen"_L1);
    svg.writeAttribute("viewBox"_L1, u"0 0 %1 %2"_s.arg(screen::width).arg(screen::height));
    svg.writeAttribute("role"_L1, "img"_L1);
    svg.writeAttribute("aria-labelledby"_L1, title);
    svg.writeAttribute("aria-describedby"_L1, text);
    svg.writeAttribute("xml:space"_L1, "preserve"_L1); // blanks of a text are as wide as others
    WriteWords(svg, "title"_L1, title, words.title);
    WriteWords(svg, "desc"_L1, text, words.description);
    FillPixels(svg, {0, 0, screen::width, screen::height}, "paper"_L1);
}

void DrawObjects(QXmlStreamWriter &svg, const DrawingContext &context)
{
    for (const FormObject &object : context.form.objects)
        DrawObject(svg, object, context);
}

void MarkAll(QXmlStreamWriter &svg, const QList<Collision> &collisions)
{
    for (const Collision &collision : collisions)
        MarkArea(svg, collision.place, "misfit"_L1, collision.reason);
}

/// An object in words; empty where there is nothing to see.
QString Words(const FormObject &object)
{
    if (!IsShown(object) || object.kind == ObjectKind::PopupList)
        return {};
    if (object.text.isEmpty() || object.font == symbolFont)
        return Describe(object);
    return u"%1 \"%2\""_s.arg(Describe(object), ShownText(object.text));
}

/// The captions of a form's check boxes in words, all that its table scrolls through; empty where
/// there is no table.
QString CaptionWords(const Form &form)
{
    const FormObject *captions = CaptionsOf(form);
    const bool hasTable = std::ranges::any_of(
        form.objects, [](const FormObject &object) { return object.kind == ObjectKind::Table; });
    if (!hasTable || !captions || captions->items.isEmpty())
        return {};
    QStringList words;
    for (const QByteArray &caption : captions->items)
        words += u"\"%1\""_s.arg(ShownText(caption));
    return u"captions "_s + words.join(u", "_s);
}

} // namespace

void DrawScreen(QXmlStreamWriter &page, const DrawingContext &context, const ScreenWords &words)
{
    StartDrawing(page, words);
    DrawObjects(page, context);
    MarkAll(page, FindCollisions(context.form));
    page.writeEndElement();
}

void DrawOpenedList(QXmlStreamWriter &page, const DrawingContext &context, const FormObject &list,
                    const ScreenWords &words)
{
    StartDrawing(page, words);
    DrawObjects(page, context);
    DrawList(page, list);
    MarkAll(page, FindCollisionsOfList(list));
    page.writeEndElement();
}

QString DescribeForm(const Form &form)
{
    QStringList words;
    for (const FormObject &object : form.objects)
        words += Words(object);
    words += CaptionWords(form);
    words.removeAll(QString());
    return words.join(u", "_s) + u'.';
}

} // namespace vellumo
