#pragma once

#include "palmtools/pilrc/form_object.h"

namespace palmtools {

// The flags of an object as they lie in a form; each takes an object of its kind.

int LabelFlags(const FormObject &label);
int FieldFlags(const FormObject &field);
int ControlFlags(const FormObject &control);
int ListFlags(const FormObject &list);
int GadgetFlags(const FormObject &gadget);
int TableFlags(const FormObject &table);
int ScrollBarFlags(const FormObject &bar); ///< one byte, the others have two

/// Tells the controls apart, which share one kind in the directory of a form.
int ControlStyle(const FormObject &control);

} // namespace palmtools
