#pragma once

#include "readback/form.h"

namespace vellumo {

// The objects of a form that are more than themselves. Null where the form has none; the first
// where a foreign one has several.

const FormObject *TitleOf(const Form &form);

/// The label with the question.
const FormObject *QuestionOf(const Form &form);

/// The list with the items of the question.
const FormObject *ItemsOf(const Form &form);

/// The list that a popup list opens.
const FormObject *PopupListOf(const Form &form);

/// The list with the captions of a table of check boxes, which no trigger opens.
const FormObject *CaptionsOf(const Form &form);

} // namespace vellumo
