#include "palmtools/pilrc/object_reader.h"

#include "palmtools/pilrc/object_attributes.h"
#include "palmtools/pilrc/object_place.h"

namespace palmtools {
namespace {

enum class Texts { none, one, any };
enum class Numbers { none, own, triggerAndList };
enum class Shape { none, position, rectangle };

constexpr std::size_t mostItems = 65535; ///< that a list can count

/// What a script tells of a kind of object, in this order.
struct ObjectRule {
    std::string_view name;
    ObjectKind kind;
    Texts texts;
    Numbers numbers;
    Shape shape;
    AttributeSet attributes;
};

using enum ObjectKind;
using enum Attribute;

constexpr AttributeSet ofField = {usable, font, editable, lines, underlined, numeric, maxChars};
constexpr AttributeSet ofButton = {usable, font, anchor, frame};
constexpr AttributeSet ofCheckBox = {usable, font, anchor, group};
constexpr AttributeSet ofTrigger = {usable, font, anchor};

constexpr ObjectRule objectRules[] = {
    {"TITLE", title, Texts::one, Numbers::none, Shape::none, {}},
    {"LABEL", label, Texts::one, Numbers::own, Shape::position, {font, usable}},
    {"FIELD", field, Texts::none, Numbers::own, Shape::rectangle, ofField},
    {"BUTTON", button, Texts::one, Numbers::own, Shape::rectangle, ofButton},
    {"CHECKBOX", checkBox, Texts::one, Numbers::own, Shape::rectangle, ofCheckBox},
    {"SELECTORTRIGGER", selectorTrigger, Texts::one, Numbers::own, Shape::rectangle, ofTrigger},
    {"POPUPTRIGGER", popupTrigger, Texts::one, Numbers::own, Shape::rectangle, ofTrigger},
    {"LIST", list, Texts::any, Numbers::own, Shape::rectangle, {usable, font, visibleItems}},
    {"POPUPLIST", popupList, Texts::none, Numbers::triggerAndList, Shape::none, {}},
    {"GRAFFITISTATEINDICATOR", graffitiIndicator, Texts::none, Numbers::none, Shape::position, {}},
    {"GADGET", gadget, Texts::none, Numbers::own, Shape::rectangle, {usable}},
    {"TABLE", table, Texts::none, Numbers::own, Shape::rectangle, {editable, tableSize}},
    {"SCROLLBAR", scrollBar, Texts::none, Numbers::own, Shape::rectangle, {usable, scrollRange}},
};

void ReadTexts(ArgumentReader &arguments, Texts texts, FormObject &object)
{
    if (texts == Texts::one)
        object.texts.push_back(arguments.Text());
    while (texts == Texts::any && arguments.words().NextIs(WordKind::text)) {
        if (object.texts.size() == mostItems)
            arguments.words().Fail("the list has more than 65535 items");
        object.texts.push_back(arguments.Text());
    }
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

/// The sizes were fields where they were written; one that was settled may not be.
void SettlePlace(ArgumentReader &arguments, const Place &place, Shape shape, FormObject &object)
{
    object.place = SettledPlace(place, object);
    if (shape == Shape::rectangle) {
        arguments.CheckedField(object.place.w, 16);
        arguments.CheckedField(object.place.h, 16);
    }
    arguments.SetPrevious(object.place);
}

} // namespace

std::optional<FormObject> ReadObject(ArgumentReader &arguments)
{
    const ObjectRule *rule = arguments.words().TakeIn(objectRules);
    if (!rule)
        return std::nullopt;

    FormObject object{.kind = rule->kind};
    ReadTexts(arguments, rule->texts, object);
    ReadNumbers(arguments, rule->numbers, object);
    const Place place = ReadPlace(arguments, rule->shape);
    ReadAttributes(arguments, rule->attributes, object);
    // Not before, since the font, on which open sizes depend, may be told last.
    if (rule->shape != Shape::none)
        SettlePlace(arguments, place, rule->shape, object);
    return object;
}

} // namespace palmtools
