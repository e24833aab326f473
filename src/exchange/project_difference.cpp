#include "exchange/project_difference.h"

#include "exchange/question_matching.h"
#include "model/form_fields.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

struct TextField {
    QString QuestionRow::*text;
    QLatin1StringView name;
};
constexpr TextField textFields[] = {{&QuestionRow::Type, "type"_L1},
                                    {&QuestionRow::ColumnName, "column name"_L1},
                                    {&QuestionRow::Title, "title"_L1},
                                    {&QuestionRow::Question, "question"_L1}};

/// The questions of a project, and the items by Id.
struct Side {
    explicit Side(const Project &project)
        : rows(project.source.Questions().Rows()), items(project.source.ItemsById())
    {}

    QStringList ItemsOf(qsizetype row) const { return items.value(rows[row].Id); }

    QList<QuestionRow> rows;
    QHash<int, QStringList> items;
};

/// A question in one line.
QString Summary(const QuestionRow &row, const QStringList &items)
{
    const QString list = items.isEmpty() ? QString() : " ("_L1 + items.join(" | "_L1) + u')';
    return u"%1, %2: "_s.arg(row.Type, row.Title) + row.Question + list;
}

/// Gathers the differences of one pair of projects.
class Comparison
{
public:
    Comparison(const Project &before, const Project &after) : m_before(before), m_after(after)
    {
        for (const FormFieldRow &row : formFields)
            if (before.*row.text != after.*row.text)
                m_found.push_back({.kind = DifferenceKind::FormChanged,
                                   .field = row.name,
                                   .before = before.*row.text,
                                   .after = after.*row.text});
        const RowMatching matching = MatchQuestions(m_before.rows, m_after.rows);
        for (qsizetype row = 0; row < m_before.rows.size(); ++row)
            if (matching.IsGone(row))
                Of(DifferenceKind::QuestionRemoved, m_before, row).before =
                    Summary(m_before.rows[row], m_before.ItemsOf(row));
        const QList<bool> moved = matching.Moved();
        for (qsizetype row = 0; row < m_after.rows.size(); ++row)
            CompareQuestion(matching.Before(row), row, moved[row]);
    }

    std::vector<Difference> Found() && { return std::move(m_found); }

private:
    /// A new difference of a question.
    Difference &Of(DifferenceKind kind, const Side &side, qsizetype row)
    {
        m_found.push_back({.kind = kind,
                           .question = static_cast<int>(row) + 1,
                           .columnName = side.rows[row].ColumnName});
        return m_found.back();
    }

    void CompareQuestion(qsizetype was, qsizetype is, bool moved)
    {
        if (was == RowMatching::none) {
            Of(DifferenceKind::QuestionAdded, m_after, is).after =
                Summary(m_after.rows[is], m_after.ItemsOf(is));
            return;
        }
        if (moved) {
            Difference &difference = Of(DifferenceKind::QuestionMoved, m_after, is);
            difference.before = QString::number(was + 1);
            difference.after = QString::number(is + 1);
        }
        for (const TextField &field : textFields)
            if (m_before.rows[was].*field.text != m_after.rows[is].*field.text) {
                Difference &difference = Of(DifferenceKind::QuestionChanged, m_after, is);
                difference.field = field.name;
                difference.before = m_before.rows[was].*field.text;
                difference.after = m_after.rows[is].*field.text;
            }
        CompareItems(m_before.ItemsOf(was), m_after.ItemsOf(is), is);
    }

    void CompareItems(const QStringList &before, const QStringList &after, qsizetype question)
    {
        RowMatching matching(before.size(), after.size());
        matching.Pair(before, after);
        for (qsizetype row = 0; row < before.size(); ++row)
            if (matching.IsGone(row))
                TellItem(DifferenceKind::ItemRemoved, question, before, row, {}, RowMatching::none);
        const QList<bool> moved = matching.Moved();
        for (qsizetype row = 0; row < after.size(); ++row)
            if (matching.Before(row) == RowMatching::none)
                TellItem(DifferenceKind::ItemAdded, question, {}, RowMatching::none, after, row);
            else if (moved[row])
                TellItem(DifferenceKind::ItemMoved, question, before, matching.Before(row), after,
                         row);
    }

    void TellItem(DifferenceKind kind, qsizetype question, const QStringList &before, qsizetype was,
                  const QStringList &after, qsizetype is)
    {
        Difference &difference = Of(kind, m_after, question);
        difference.field = "item"_L1;
        difference.before = before.value(was);
        difference.after = after.value(is);
        difference.itemBefore = static_cast<int>(was) + 1;
        difference.itemAfter = static_cast<int>(is) + 1;
    }

    const Side m_before, m_after;
    std::vector<Difference> m_found;
};

} // namespace

std::vector<Difference> DifferencesOf(const Project &before, const Project &after)
{
    return Comparison(before, after).Found();
}

} // namespace vellumo
