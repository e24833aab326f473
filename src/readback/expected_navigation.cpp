#include "readback/expected_navigation.h"

namespace vellumo {
namespace {

// Objects of every form, by their numbers.
constexpr quint32 nowhere = 0;
constexpr quint32 answer = 2;
constexpr quint32 secondControl = 3;
constexpr quint32 previous = 99;
constexpr quint32 next = 100;
constexpr quint32 clear = 101;

constexpr quint32 onAnObject = 1; // the focus is on an object from the start

} // namespace

Navigation ExpectedNavigation(const DeliveredType &type)
{
    Navigation navigation = {.initialState = onAnObject, .initialObject = answer};
    if (type.hasSecondControl)
        navigation.items = {{answer, nowhere, secondControl},
                            {secondControl, answer, previous},
                            {previous, secondControl, clear}};
    else
        navigation.items = {{answer, nowhere, next}, {previous, answer, clear}};
    navigation.items += {{clear, previous, next}, {next, clear, answer}};
    return navigation;
}

} // namespace vellumo
