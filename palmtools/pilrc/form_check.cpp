#include "palmtools/pilrc/form_check.h"

#include <string>

namespace palmtools {
namespace {

// What the scroll bars of the handheld's own programs have.
constexpr int scrollBarBreadth = 7;

bool HasOwnNumber(ObjectKind kind)
{
    return kind != ObjectKind::title && kind != ObjectKind::graffitiIndicator &&
           kind != ObjectKind::popupList;
}

} // namespace

void FormCheck::See(const FormObject &object)
{
    CheckIndicator(object);
    CheckNumber(object);
    CheckScrollBar(object);
}

/// The indicator shows whoever writes whether the next letter becomes a capital.
void FormCheck::SeeEnd()
{
    if (m_hasEditableField && !m_hasIndicator)
        m_words.Warn("editable field without a Graffiti state indicator");
}

void FormCheck::CheckIndicator(const FormObject &object)
{
    m_hasEditableField |= object.kind == ObjectKind::field && object.editable;
    if (object.kind != ObjectKind::graffitiIndicator)
        return;
    if (m_hasIndicator)
        m_words.Warn("a second Graffiti state indicator");
    m_hasIndicator = true;
}

/// Labels may share a number: programs find objects by it, and seldom a label.
void FormCheck::CheckNumber(const FormObject &object)
{
    if (!HasOwnNumber(object.kind))
        return;
    const auto [first, isNew] = m_kinds.emplace(object.number, object.kind);
    const bool bothLabels = first->second == ObjectKind::label && object.kind == ObjectKind::label;
    if (!isNew && !bothLabels)
        m_words.Warn("object number " + std::to_string(object.number) + " is used twice");
}

void FormCheck::CheckScrollBar(const FormObject &object)
{
    if (object.kind == ObjectKind::scrollBar && object.place.w != scrollBarBreadth &&
        object.place.h != scrollBarBreadth)
        m_words.Warn("the scroll bar is not 7 pixels wide or high");
}

} // namespace palmtools
