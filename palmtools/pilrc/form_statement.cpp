#include "palmtools/pilrc/statements.h"

#include "palmtools/pilrc/font_widths.h"
#include "palmtools/pilrc/form_bytes.h"
#include "palmtools/pilrc/object_reader.h"

#include <string>
#include <unordered_map>

namespace palmtools {
namespace {

struct FormFlag {
    std::string_view name;
    bool FormHeader::*flag;
    bool value;
};

constexpr FormFlag formFlags[] = {
    {"USABLE", &FormHeader::usable, true},         {"NONUSABLE", &FormHeader::usable, false},
    {"FRAME", &FormHeader::frame, true},           {"NOFRAME", &FormHeader::frame, false},
    {"SAVEBEHIND", &FormHeader::saveBehind, true}, {"NOSAVEBEHIND", &FormHeader::saveBehind, false},
};

FormHeader ReadHeader(ArgumentReader &arguments)
{
    FormHeader header;
    header.number = arguments.Id();
    const Place place = arguments.PositionAndSize();
    header.place = {place.x, place.y, place.w.value_or(0), place.h.value_or(FontHeight(0) + 1)};
    arguments.SetPrevious(header.place);
    while (const FormFlag *flag = arguments.words().TakeIn(formFlags))
        header.*flag->flag = flag->value;
    return header;
}

bool HasOwnNumber(ObjectKind kind)
{
    return kind != ObjectKind::title && kind != ObjectKind::graffitiIndicator &&
           kind != ObjectKind::popupList;
}

/// What is odd about the objects of a form as it grows.
class FormCheck
{
public:
    explicit FormCheck(ScriptReader &words) : m_words(words) {}

    void See(const FormObject &object)
    {
        CheckIndicator(object);
        CheckNumber(object);
        CheckScrollBar(object);
    }

    void SeeEnd()
    {
        if (m_hasEditableField && !m_hasIndicator)
            m_words.Warn("editable field without a Graffiti state indicator");
    }

private:
    void CheckIndicator(const FormObject &object)
    {
        m_hasEditableField |= object.kind == ObjectKind::field && object.editable;
        if (object.kind != ObjectKind::graffitiIndicator)
            return;
        if (m_hasIndicator)
            m_words.Warn("a second Graffiti state indicator");
        m_hasIndicator = true;
    }

    void CheckNumber(const FormObject &object)
    {
        if (!HasOwnNumber(object.kind))
            return;
        const auto [first, isNew] = m_kinds.emplace(object.number, object.kind);
        const bool bothLabels =
            first->second == ObjectKind::label && object.kind == ObjectKind::label;
        if (!isNew && !bothLabels)
            m_words.Warn("object number " + std::to_string(object.number) + " is used twice");
    }

    void CheckScrollBar(const FormObject &object)
    {
        constexpr int breadth = 7;
        if (object.kind == ObjectKind::scrollBar && object.place.w != breadth &&
            object.place.h != breadth)
            m_words.Warn("the scroll bar is not 7 pixels wide or high");
    }

    ScriptReader &m_words;
    bool m_hasEditableField = false;
    bool m_hasIndicator = false;
    std::unordered_map<std::uint16_t, ObjectKind> m_kinds; ///< of the first object of a number
};

} // namespace

void ReadForm(ArgumentReader &arguments, ResourceList &resources)
{
    ScriptReader &words = arguments.words();
    const FormHeader header = ReadHeader(arguments);
    words.ExpectName("begin");

    FormBytes form;
    FormCheck check(words);
    while (!words.TakeName("end")) {
        const auto object = ReadObject(arguments);
        if (!object)
            words.FailExpected("form object");
        check.See(*object);
        form.Add(*object);
    }
    check.SeeEnd();
    const FourBytes type = FourBytesOf("tFRM");
    resources.Admit(words, type, header.number, form.Size());
    resources.Keep({type, header.number, form.Build(header)});
}

} // namespace palmtools
