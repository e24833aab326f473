#pragma once

#include "palmtools/pilrc/form_object.h"
#include "palmtools/pilrc/script_reader.h"

#include <cstdint>
#include <unordered_map>

namespace palmtools {

/// Warns of what is odd about the objects of a form while they are read.
class FormCheck
{
public:
    /// Warnings go to the reader, which must outlive this.
    explicit FormCheck(ScriptReader &words) : m_words(words) {}

    void See(const FormObject &object);
    void SeeEnd();

private:
    void CheckIndicator(const FormObject &object);
    void CheckNumber(const FormObject &object);
    void CheckScrollBar(const FormObject &object);

    ScriptReader &m_words;
    bool m_hasEditableField = false;
    bool m_hasIndicator = false;
    std::unordered_map<std::uint16_t, ObjectKind> m_kinds; ///< of the first object of a number
};

} // namespace palmtools
