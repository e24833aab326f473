#pragma once

#include "palmtools/pilrc/object_reader.h"

#include <string>
#include <utility>
#include <vector>

namespace palmtools {

inline std::string ShownPlace(const Rectangle &place)
{
    std::string shown;
    for (const std::int64_t number : {place.x, place.y, place.w, place.h})
        shown += std::to_string(number) + " ";
    return shown;
}

/// Reads the objects of a script one after the other.
class Objects
{
public:
    explicit Objects(std::string script) : m_script(std::move(script)) {}

    FormObject Next() { return ReadObject(m_arguments).value(); }

    /// The rectangle to which the next object would refer after the whole script was read.
    std::string PreviousAtEnd()
    {
        while (!m_words.NextIs(WordKind::end))
            Next();
        return ShownPlace(m_arguments.previous());
    }

    ScriptReader &words() { return m_words; }

private:
    std::string m_script;
    Warnings m_warnings;
    ScriptReader m_words{m_script, m_warnings};
    ArgumentReader m_arguments{m_words};
};

/// An object of every kind with what it must have.
struct ExampleObject {
    const char *script;
    const char *attributes; ///< the words that it takes, with a blank around each
};

inline constexpr ExampleObject exampleObjects[] = {
    {"TITLE \"a\"", ""},
    {"LABEL \"a\" ID 1 AT (1 2)", " USABLE NONUSABLE FONT "},
    {"FIELD ID 1 AT (1 2 3 4)",
     " USABLE NONUSABLE FONT EDITABLE NONEDITABLE SINGLELINE MULTIPLELINES UNDERLINED NUMERIC "
     "MAXCHARS "},
    {"BUTTON \"a\" ID 1 AT (1 2 3 4)",
     " USABLE NONUSABLE FONT LEFTANCHOR RIGHTANCHOR FRAME NOFRAME "},
    {"CHECKBOX \"a\" ID 1 AT (1 2 3 4)", " USABLE NONUSABLE FONT LEFTANCHOR RIGHTANCHOR GROUP "},
    {"SELECTORTRIGGER \"a\" ID 1 AT (1 2 3 4)", " USABLE NONUSABLE FONT LEFTANCHOR RIGHTANCHOR "},
    {"POPUPTRIGGER \"a\" ID 1 AT (1 2 3 4)", " USABLE NONUSABLE FONT LEFTANCHOR RIGHTANCHOR "},
    {"LIST \"a\" ID 1 AT (1 2 3 4)", " USABLE NONUSABLE FONT VISIBLEITEMS "},
    {"POPUPLIST ID 1 2", ""},
    {"GRAFFITISTATEINDICATOR AT (1 2)", ""},
    {"GADGET ID 1 AT (1 2 3 4)", " USABLE NONUSABLE "},
    {"TABLE ID 1 AT (1 2 3 4)", " EDITABLE NONEDITABLE ROWS COLUMNS COLUMNWIDTHS "},
    {"SCROLLBAR ID 1 AT (1 2 3 4)", " USABLE NONUSABLE VALUE MIN MAX PAGESIZE "},
};

} // namespace palmtools
