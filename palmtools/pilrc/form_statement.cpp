#include "palmtools/pilrc/form_statement.h"

#include "palmtools/pilrc/font_widths.h"
#include "palmtools/pilrc/form_bytes.h"
#include "palmtools/pilrc/form_check.h"
#include "palmtools/pilrc/object_reader.h"
#include "palmtools/pilrc/resource_types.h"

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
    // Only what is admitted has been built whole.
    resources.Admit(words, formType, header.number, form.Size());
    resources.Keep({formType, header.number, form.Build(header)});
}

} // namespace palmtools
