#pragma once

#include "model/form_fields.h"

#include <array>
#include <optional>
#include <utility>

namespace vellumo {

/// Something as it was before a step, and as it was after it.
template <typename Value> struct Change {
    Value before = {}, after = {};

    bool IsEmpty() const { return before == after; }
    const Value &To(bool back) const { return back ? before : after; }
};

/// The rows in which two tables differ: all from the first that does to the last.
template <typename Row> struct Splice {
    qsizetype first = 0;
    Change<QList<Row>> rows;
};

/// The items in which two tables differ: rows that went, by their place, and rows that came at the
/// end. Items come nowhere else, and those of one question need not stand together.
struct ItemChange {
    QList<std::pair<qsizetype, ItemRow>> gone;
    QList<ItemRow> come;
};

/// What one thing that was done has changed in a project, so that it can be taken back and
/// repeated. It holds the rows and texts that differ, whatever else the project has.
class ProjectStep
{
public:
    ProjectStep(const Project &before, const Project &after);

    /// Whether nothing differs; where the cursor stands does not count.
    bool IsEmpty() const;

    /// Needs the project as it was after the step.
    void TakeBack(Project &project) const { Put(project, true); }
    /// Needs it as it was before the step.
    void Repeat(Project &project) const { Put(project, false); }

    bool ChangesQuestions() const;
    /// The first field of the form information that differs, if one does.
    std::optional<FormField> ChangedField() const;

    /// Makes one step of this and the next. For steps that change texts alone.
    void Append(const ProjectStep &next);

private:
    void Put(Project &project, bool back) const;

    std::array<Change<QString>, formFieldCount> m_texts;
    Change<QStringList> m_titles;
    Change<int> m_maxId;
    Change<clsDataSource::Position> m_cursor;
    Splice<QuestionRow> m_questions;
    ItemChange m_items;
};

} // namespace vellumo
