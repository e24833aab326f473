#include "editing/project_step.h"

#include <algorithm>
#include <ranges>

namespace vellumo {
namespace {

/// Without the rows that are the same at both ends.
template <typename Row> Splice<Row> SpliceOf(const QList<Row> &before, const QList<Row> &after)
{
    if (before.isSharedWith(after))
        return {};
    const auto [left, right] = std::ranges::mismatch(before, after);
    const qsizetype first = left - before.begin();
    const qsizetype rest = std::min(before.size(), after.size()) - first;
    qsizetype same = 0;
    while (same < rest && before[before.size() - 1 - same] == after[after.size() - 1 - same])
        ++same;
    return {first,
            {before.sliced(first, before.size() - first - same),
             after.sliced(first, after.size() - first - same)}};
}

template <typename Row>
QList<Row> Spliced(const QList<Row> &rows, const Splice<Row> &splice, bool back)
{
    return rows.first(splice.first) + splice.rows.To(back) +
           rows.sliced(splice.first + splice.rows.To(!back).size());
}

/// Each row that is still there is looked for in those before, one after the other; what these pass
/// over is gone.
ItemChange ItemChangeOf(const QList<ItemRow> &before, const QList<ItemRow> &after)
{
    if (before.isSharedWith(after))
        return {};
    ItemChange change;
    qsizetype kept = 0;
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (kept < after.size() && before[i] == after[kept])
            ++kept;
        else
            change.gone.append({i, before[i]});
    }
    change.come = after.sliced(kept);
    return change;
}

QList<ItemRow> TakenBack(const QList<ItemRow> &rows, const ItemChange &change)
{
    const QList<ItemRow> kept = rows.first(rows.size() - change.come.size());
    QList<ItemRow> result;
    result.reserve(kept.size() + change.gone.size());
    auto next = kept.begin();
    for (const auto &[place, row] : change.gone) {
        for (; result.size() < place; ++next)
            result.append(*next);
        result.append(row);
    }
    std::copy(next, kept.end(), std::back_inserter(result));
    return result;
}

QList<ItemRow> Repeated(const QList<ItemRow> &rows, const ItemChange &change)
{
    QList<ItemRow> result;
    result.reserve(rows.size() - change.gone.size() + change.come.size());
    auto gone = change.gone.begin();
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (gone != change.gone.end() && gone->first == i)
            ++gone;
        else
            result.append(rows[i]);
    }
    return result + change.come;
}

} // namespace

ProjectStep::ProjectStep(const Project &before, const Project &after)
    : m_titles{before.TitleList, after.TitleList},
      m_maxId{before.source.MaxId(), after.source.MaxId()},
      m_cursor{before.source.GetPosition(), after.source.GetPosition()},
      m_questions(SpliceOf(before.source.Questions().Rows(), after.source.Questions().Rows())),
      m_items(ItemChangeOf(before.source.Items().Rows(), after.source.Items().Rows()))
{
    for (const FormFieldRow &row : formFields)
        m_texts[static_cast<size_t>(row.field)] = {before.*row.text, after.*row.text};
}

bool ProjectStep::IsEmpty() const
{
    return !ChangedField() && !ChangesQuestions() && m_titles.IsEmpty() && m_maxId.IsEmpty();
}

bool ProjectStep::ChangesQuestions() const
{
    return !m_questions.rows.IsEmpty() || !m_items.gone.isEmpty() || !m_items.come.isEmpty();
}

std::optional<FormField> ProjectStep::ChangedField() const
{
    for (const FormFieldRow &row : formFields)
        if (!m_texts[static_cast<size_t>(row.field)].IsEmpty())
            return row.field;
    return {};
}

void ProjectStep::Put(Project &project, bool back) const
{
    for (const FormFieldRow &row : formFields)
        if (const auto &text = m_texts[static_cast<size_t>(row.field)]; !text.IsEmpty())
            project.*row.text = text.To(back);
    if (!ChangesQuestions())
        return;
    clsDataSource &source = project.source;
    const QList<ItemRow> items = source.Items().Rows();
    source.Questions().SetRows(Spliced(source.Questions().Rows(), m_questions, back));
    source.Items().SetRows(back ? TakenBack(items, m_items) : Repeated(items, m_items));
    source.SetMaxId(m_maxId.To(back));
    source.SetPosition(m_cursor.To(back));
    project.TitleList = m_titles.To(back);
}

void ProjectStep::Append(const ProjectStep &next)
{
    Q_ASSERT(!ChangesQuestions() && !next.ChangesQuestions());
    for (size_t field = 0; field < formFieldCount; ++field)
        if (!next.m_texts[field].IsEmpty())
            m_texts[field] = {m_texts[field].IsEmpty() ? next.m_texts[field].before
                                                       : m_texts[field].before,
                              next.m_texts[field].after};
}

} // namespace vellumo
