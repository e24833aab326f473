// A project's file: what can be read can be written, and is then read as the same again.

#include "fuzz/require.h"
#include "model/form_fields.h"
#include "model/project_reader.h"
#include "model/project_writer.h"

#include <algorithm>

using namespace vellumo;

namespace {

constexpr QLatin1StringView endOfValue("]]>");

/// Such a project is written as it stands, and cannot be read again.
bool HoldsEndOfValue(const Project &project)
{
    const auto holds = [](const QString &text) { return text.contains(endOfValue); };
    const auto questionHolds = [&](const QuestionRow &row) {
        return holds(row.Title) || holds(row.Question) || holds(row.Type) || holds(row.ColumnName);
    };
    return std::ranges::any_of(formFields,
                               [&](const auto &field) { return holds(project.*field.text); }) ||
           std::ranges::any_of(project.TitleList, holds) ||
           std::ranges::any_of(project.source.Questions().Rows(), questionHolds) ||
           std::ranges::any_of(project.source.Items().Rows(), holds, &ItemRow::Item);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto project = ReadProject(BytesOf(data, size));
    if (!project) {
        Require(!project.error().text.isEmpty(), "a refusal has its reason");
        return 0;
    }
    const auto written = WriteProject(*project);
    if (!written || HoldsEndOfValue(*project))
        return 0;
    const auto again = ReadProject(*written);
    Require(bool(again), "what was written can be read");
    const auto twice = WriteProject(*again);
    Require(twice && *twice == *written, "what is read again is written as the same bytes");
    return 0;
}
