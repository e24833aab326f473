#include "handheld/screen_geometry.h"

namespace vellumo {
namespace {

constexpr std::array<QuestionRoom, typeCount> rooms = {{
    {TypeId::Text, 2},
    {TypeId::Numeric, 2},
    {TypeId::PulldownList, 3},
    {TypeId::YesNo, 2},
    {TypeId::Signature, 3},
    {TypeId::Notes, 1},
    {TypeId::DateTime, 2},
    {TypeId::Currency, 2},
    {TypeId::ScannedBarcode, 2},
    {TypeId::Checkboxes, 1},
}};
static_assert(HasRowPerType(rooms));

} // namespace

constinit const std::array<QuestionRoom, typeCount> questionRooms = rooms;

int FreeLines(const QuestionType *type)
{
    return type ? RowOf(questionRooms, type->id).freeLines : 1;
}

} // namespace vellumo
