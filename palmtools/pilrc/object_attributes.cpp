#include "palmtools/pilrc/object_attributes.h"

#include "palmtools/pilrc/font_widths.h"

#include <string>

namespace palmtools {
namespace {

void ReadFont(ArgumentReader &arguments, FormObject &object)
{
    object.font = arguments.Number();
    if (!FontIsKnown(object.font))
        arguments.words().Fail("font " + std::to_string(object.font) + " is not known");
}

void ReadColumnWidths(ArgumentReader &arguments, FormObject &object)
{
    object.columnWidths.clear();
    for (int column = 0; column < object.columns; ++column)
        object.columnWidths.push_back(arguments.Field(16));
}

template <bool FormObject::*flag, bool value> void Set(ArgumentReader &, FormObject &object)
{
    object.*flag = value;
}

template <auto FormObject::*number> void Read16(ArgumentReader &arguments, FormObject &object)
{
    object.*number = arguments.Field(16);
}

/// A count below zero is stored by its low bits, and means as many.
template <auto FormObject::*count> void ReadCount(ArgumentReader &arguments, FormObject &object)
{
    object.*count = static_cast<std::uint16_t>(arguments.Field(16) & 0xFFFF);
}

/// A word that tells an attribute, and how it is read.
struct AttributeWord {
    std::string_view name;
    Attribute attribute;
    void (*read)(ArgumentReader &arguments, FormObject &object);
};

using enum Attribute;

constexpr AttributeWord attributeWords[] = {
    {"USABLE", usable, Set<&FormObject::usable, true>},
    {"NONUSABLE", usable, Set<&FormObject::usable, false>},
    {"FONT", font, ReadFont},
    {"LEFTANCHOR", anchor, Set<&FormObject::leftAnchor, true>},
    {"RIGHTANCHOR", anchor, Set<&FormObject::leftAnchor, false>},
    {"FRAME", frame, Set<&FormObject::frame, true>},
    {"NOFRAME", frame, Set<&FormObject::frame, false>},
    {"GROUP", group,
     [](ArgumentReader &from, FormObject &object) { object.group = from.Field(8); }},
    {"EDITABLE", editable, Set<&FormObject::editable, true>},
    {"NONEDITABLE", editable, Set<&FormObject::editable, false>},
    {"SINGLELINE", lines, Set<&FormObject::singleLine, true>},
    {"MULTIPLELINES", lines, Set<&FormObject::singleLine, false>},
    {"UNDERLINED", underlined, Set<&FormObject::underlined, true>},
    {"NUMERIC", numeric, Set<&FormObject::numeric, true>},
    {"MAXCHARS", maxChars, Read16<&FormObject::maxChars>},
    {"VISIBLEITEMS", visibleItems, Read16<&FormObject::visibleItems>},
    {"ROWS", tableSize, ReadCount<&FormObject::rows>},
    {"COLUMNS", tableSize, ReadCount<&FormObject::columns>},
    {"COLUMNWIDTHS", tableSize, ReadColumnWidths},
    {"VALUE", scrollRange, Read16<&FormObject::value>},
    {"MIN", scrollRange, Read16<&FormObject::min>},
    {"MAX", scrollRange, Read16<&FormObject::max>},
    {"PAGESIZE", scrollRange, Read16<&FormObject::pageSize>},
};

} // namespace

void ReadAttributes(ArgumentReader &arguments, AttributeSet allowed, FormObject &object)
{
    ScriptReader &words = arguments.words();
    while (const AttributeWord *word = words.NextIn(attributeWords)) {
        if (!allowed.Has(word->attribute))
            words.Fail(std::string(words.Peek().written) + " does not belong here");
        words.Take();
        word->read(arguments, object);
    }
}

} // namespace palmtools
