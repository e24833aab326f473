#include "screens/form_parts.h"

#include <algorithm>

namespace vellumo {
namespace {

template <typename Condition>
const FormObject *FirstOf(const Form &form, ObjectKind kind, Condition condition)
{
    const auto found = std::ranges::find_if(form.objects, [&](const FormObject &object) {
        return object.kind == kind && condition(object.number);
    });
    return found == form.objects.end() ? nullptr : &*found;
}

bool Any(quint32)
{
    return true;
}

} // namespace

const FormObject *TitleOf(const Form &form)
{
    return FirstOf(form, ObjectKind::Title, Any);
}

const FormObject *QuestionOf(const Form &form)
{
    return FirstOf(form, ObjectKind::Label, [](quint32 number) { return number == 1; });
}

const FormObject *ItemsOf(const Form &form)
{
    return FirstOf(form, ObjectKind::List, Any);
}

const FormObject *PopupListOf(const Form &form)
{
    const FormObject *popup = FirstOf(form, ObjectKind::PopupList, Any);
    if (!popup)
        return nullptr;
    return FirstOf(form, ObjectKind::List,
                   [popup](quint32 number) { return number == popup->list; });
}

const FormObject *CaptionsOf(const Form &form)
{
    const FormObject *popup = FirstOf(form, ObjectKind::PopupList, Any);
    return FirstOf(form, ObjectKind::List,
                   [popup](quint32 number) { return !popup || number != popup->list; });
}

} // namespace vellumo
