#include "readback/expected_form.h"

#include "readback/expected_objects.h"
#include "readback/form_flags.h"

namespace vellumo {
namespace {

using namespace expected;

constexpr quint32 screenSize = 160; // in pixels, both ways

QList<FormObject> QuestionObjects(const DeliveredQuestion &question)
{
    return {Title(question.title), Label(1, 10, 34, question.text, Font::Bold)};
}

QList<FormObject> AnswerObjects(const DeliveredQuestion &question)
{
    QList<FormObject> objects = question.type->objects;
    for (FormObject &object : objects) {
        if (object.kind == ObjectKind::List)
            Fill(object, question.items);
    }
    return objects;
}

/// What every form has after the objects of its type.
QList<FormObject> CommonObjects()
{
    return {SymbolButton(97, {150, 33, 8, 13}, "\v"),
            ShownField(98, {10, 21, 80, 13}, 15),
            FramedButton(99, {2, 144, 35, 15}, "Prev"),
            FramedButton(100, {122, 144, 35, 15}, "Next"),
            FramedButton(101, {64, 144, 35, 15}, "Clear"),
            SymbolButton(102, {148, 2, 8, 11}, "\t")};
}

} // namespace

Form ExpectedForm(quint32 number, const DeliveredQuestion &question)
{
    return {.number = number,
            .width = screenSize,
            .height = screenSize,
            .flags = FormFlag::usable,
            .objects = QuestionObjects(question) + AnswerObjects(question) + CommonObjects()};
}

} // namespace vellumo
