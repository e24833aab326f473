#pragma once

#include "model/project.h"

#include <array>

namespace vellumo {

/// The texts that identify a Vellsheet, in the order in which files and reviews have them.
enum class FormField { Name, Version, Description, DataFolder };
inline constexpr size_t formFieldCount = 4;

/// All that the program knows of such a text, but its rule and its box.
struct FormFieldRow {
    FormField field;
    QString Project::*text;
    QLatin1StringView element;     ///< in a project file
    QLatin1StringView name;        ///< to a user, in a sentence
    QLatin1StringView summaryName; ///< in a summary of the project; empty = it is left out
    int step;                      ///< of the designer, in which it is entered
};

/// A row for each field, in the order of FormField.
inline constexpr std::array<FormFieldRow, formFieldCount> formFields = {{
    {FormField::Name, &Project::FormName, QLatin1StringView("FormName"),
     QLatin1StringView("form name"), QLatin1StringView("name"), 1},
    {FormField::Version, &Project::FormVersion, QLatin1StringView("FormVersion"),
     QLatin1StringView("form version"), QLatin1StringView("version"), 1},
    {FormField::Description,
     &Project::Description,
     QLatin1StringView("Description"),
     QLatin1StringView("description"),
     {},
     1},
    {FormField::DataFolder,
     &Project::FormPath,
     QLatin1StringView("FormPath"),
     QLatin1StringView("data folder"),
     {},
     3},
}};

/// Whether some rows are one for each field, in the order of FormField. For static_assert: a table
/// of another room that lacks a field does not compile.
template <typename Rows> consteval bool HasRowPerField(const Rows &rows)
{
    if (std::size(rows) != formFieldCount)
        return false;
    for (size_t i = 0; i < formFieldCount; ++i)
        if (rows[i].field != FormField(i))
            return false;
    return true;
}

static_assert(HasRowPerField(formFields));

constexpr const FormFieldRow &RowOf(FormField field)
{
    return formFields[static_cast<size_t>(field)];
}

} // namespace vellumo
