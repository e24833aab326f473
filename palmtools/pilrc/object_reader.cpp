#include "palmtools/pilrc/object_reader.h"

#include "palmtools/common/ascii.h"
#include "palmtools/pilrc/font_widths.h"
#include "palmtools/pilrc/object_attributes.h"

#include <algorithm>

namespace palmtools {
namespace {

enum class Texts { none, one, any };
enum class Numbers { none, own, triggerAndList };
enum class Shape { none, position, rectangle };

struct ObjectRule {
    std::string_view name;
    ObjectKind kind;
    Texts texts;
    Numbers numbers;
    Shape shape;
    unsigned attributes;
    int margin; ///< pixels that AUTO adds to the width of the text
};

using enum ObjectKind;

constexpr ObjectRule objectRules[] = {
    {"TITLE", title, Texts::one, Numbers::none, Shape::none, noAttributes, 0},
    {"LABEL", label, Texts::one, Numbers::own, Shape::position, font | usable, 0},
    {"FIELD", field, Texts::none, Numbers::own, Shape::rectangle,
     usable | font | editable | lines | underlined | numeric | maxChars, 0},
    {"BUTTON", button, Texts::one, Numbers::own, Shape::rectangle, usable | font | anchor | frame,
     12},
    {"CHECKBOX", checkBox, Texts::one, Numbers::own, Shape::rectangle,
     usable | font | anchor | group, 18},
    {"SELECTORTRIGGER", selectorTrigger, Texts::one, Numbers::own, Shape::rectangle,
     usable | font | anchor, 6},
    {"POPUPTRIGGER", popupTrigger, Texts::one, Numbers::own, Shape::rectangle,
     usable | font | anchor, 18},
    {"LIST", list, Texts::any, Numbers::own, Shape::rectangle, usable | font | visibleItems, 6},
    {"POPUPLIST", popupList, Texts::none, Numbers::triggerAndList, Shape::none, noAttributes, 0},
    {"GRAFFITISTATEINDICATOR", graffitiIndicator, Texts::none, Numbers::none, Shape::position,
     noAttributes, 0},
    {"GADGET", gadget, Texts::none, Numbers::own, Shape::rectangle, usable, 0},
    {"TABLE", table, Texts::none, Numbers::own, Shape::rectangle, editable | tableSize, 0},
    {"SCROLLBAR", scrollBar, Texts::none, Numbers::own, Shape::rectangle, usable | scrollRange, 0},
};

constexpr std::int64_t listLineHeight = 11;
constexpr std::int64_t mostLinesShown = 14;
constexpr std::int64_t greatestListHeight = 160;

const ObjectRule *RuleOf(const Word &word)
{
    if (word.kind != WordKind::name)
        return nullptr;
    for (const ObjectRule &rule : objectRules) {
        if (EqualIgnoringCase(word.written, rule.name))
            return &rule;
    }
    return nullptr;
}

void ReadTexts(ArgumentReader &arguments, Texts texts, FormObject &object)
{
    if (texts == Texts::one)
        object.texts.push_back(arguments.Text());
    while (texts == Texts::any && arguments.words().NextIs(WordKind::text))
        object.texts.push_back(arguments.Text());
}

void ReadNumbers(ArgumentReader &arguments, Numbers numbers, FormObject &object)
{
    if (numbers != Numbers::none)
        object.number = arguments.Id();
    if (numbers == Numbers::triggerAndList)
        object.listNumber = arguments.Field(16);
}

Place ReadPlace(ArgumentReader &arguments, Shape shape)
{
    switch (shape) {
    case Shape::position:
        return arguments.Position();
    case Shape::rectangle:
        return arguments.PositionAndSize();
    default:
        return {};
    }
}

std::int64_t WidestText(const FormObject &object)
{
    std::int64_t widest = 0;
    for (const std::string_view text : object.texts)
        widest = std::max(widest, TextWidth(text, object.font));
    return widest;
}

std::int64_t ListHeight(const FormObject &object, std::int64_t height)
{
    if (object.visibleItems)
        return std::min(listLineHeight * *object.visibleItems, greatestListHeight);
    if (height == 0) {
        const auto items = static_cast<std::int64_t>(object.texts.size());
        return listLineHeight * std::min(items, mostLinesShown);
    }
    return height;
}

/// An indicator always has the same size; a label has that of its text.
Rectangle Settled(const Place &place, const ObjectRule &rule, const FormObject &object)
{
    if (rule.kind == graffitiIndicator)
        return {place.x, place.y, 9, 10};
    const std::int64_t w = place.w ? *place.w : WidestText(object) + rule.margin;
    const std::int64_t h = place.h ? *place.h : FontHeight(object.font) + 1;
    return {place.x, place.y, w, rule.kind == list ? ListHeight(object, h) : h};
}

} // namespace

std::optional<FormObject> ReadObject(ArgumentReader &arguments)
{
    const ObjectRule *rule = RuleOf(arguments.words().Peek());
    if (!rule)
        return std::nullopt;
    arguments.words().Take();

    FormObject object{.kind = rule->kind};
    ReadTexts(arguments, rule->texts, object);
    ReadNumbers(arguments, rule->numbers, object);
    const Place place = ReadPlace(arguments, rule->shape);
    // The font may be told last, so what depends on it is settled here.
    ReadAttributes(arguments, rule->attributes, object);
    if (rule->shape == Shape::none)
        return object;
    object.place = Settled(place, *rule, object);
    if (rule->shape == Shape::rectangle) {
        arguments.CheckedField(object.place.w, 16);
        arguments.CheckedField(object.place.h, 16);
    }
    arguments.SetPrevious(object.place);
    return object;
}

} // namespace palmtools
