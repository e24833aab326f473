// 10,000 operations on a list of questions, side by side with a plain vector.

#include "editing/property_rules.h"
#include "editing/question_list.h"
#include "editing/wizard_rules.h"
#include "property/random_projects.h"
#include "property/rules_again.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// What the list should be: a place is that in the vector.
struct Model {
    struct Entry {
        Question question;
        int id;
    };
    std::vector<Entry> entries = {};
    std::size_t current = 0;
    int nextId = 1;

    void Append(Question question)
    {
        if (!OwnsItems(question.type))
            question.items.clear();
        entries.push_back({question, nextId++});
    }

    bool HasColumn(const QString &name) const
    {
        return std::ranges::any_of(
            entries, [&](const Entry &entry) { return entry.question.columnName == name; });
    }
};

QStringList LinesOf(const Model &model)
{
    QStringList lines = {u"current %1, next %2"_s.arg(model.current).arg(model.nextId)};
    int order = 0;
    for (const auto &[question, id] : model.entries) {
        lines += u"%1 %2"_s.arg(++order).arg(id);
        lines += {question.type, question.title, question.columnName, question.question};
        lines += question.items;
    }
    return lines;
}

/// The same of the real one, and that no item is left without its question.
QStringList LinesOf(const clsDataSource &source)
{
    const bool empty = source.QuestionCount() == 0;
    QStringList lines = {
        u"current %1, next %2"_s.arg(empty ? 0 : source.GetPosition()).arg(source.MaxId())};
    qsizetype items = 0;
    for (const QuestionRow &row : source.Questions().Rows()) {
        lines += u"%1 %2"_s.arg(row.Order).arg(row.Id);
        lines += {row.Type, row.Title, row.ColumnName, row.Question};
        const QStringList own = source.ItemsOf(row.Id);
        lines += own;
        items += own.size();
    }
    EXPECT_EQ(items, std::ssize(source.Items().Rows()));
    return lines;
}

class QuestionListWalk
{
public:
    QuestionListWalk() { m_source.GetDataMember(); }

    /// One operation, on both; the two must then agree.
    void Step()
    {
        using Operation = void (QuestionListWalk::*)();
        constexpr std::array all = {&QuestionListWalk::Add,    &QuestionListWalk::Add,
                                    &QuestionListWalk::Select, &QuestionListWalk::Up,
                                    &QuestionListWalk::Down,   &QuestionListWalk::Duplicate,
                                    &QuestionListWalk::Edit,   &QuestionListWalk::Remove};
        const Operation operation =
            m_model.entries.empty() ? &QuestionListWalk::Add : m_random.OneOf(all);
        // A longer list now and then, up to the last that has room.
        const bool grows =
            operation != &QuestionListWalk::Remove || m_random.OnceIn(m_shrinking ? 1 : 4);
        (this->*(grows ? operation : &QuestionListWalk::Up))();
        if (m_model.entries.size() == 128)
            m_shrinking = true;
        if (m_model.entries.size() < 5)
            m_shrinking = false;
        m_most = std::max(m_most, m_model.entries.size());
    }

    QStringList Expected() const { return LinesOf(m_model); }
    QStringList Actual() const { return LinesOf(m_source); }
    std::size_t Most() const { return m_most; }

private:
    Question RandomShortQuestion()
    {
        Question question = {.title = RandomText(m_random, 20, Letters::Plain),
                             .question = RandomText(m_random, 40, Letters::Awkward),
                             .type = RandomType(m_random, Letters::Plain),
                             .columnName = m_random.OneOf(std::array{u"a"_s, u"b"_s, u" c "_s}) +
                                           RandomText(m_random, 3, Letters::Plain)};
        if (m_random.OnceIn(20))
            question.columnName = QString(m_random.Between(250, 255), u'x');
        for (int i = m_random.Below(6); i > 0; --i)
            question.items += RandomText(m_random, 10, Letters::Awkward);
        return question;
    }

    Model::Entry &Current() { return m_model.entries[m_model.current]; }

    void Add()
    {
        const bool isFull = m_model.entries.size() >= 128;
        ASSERT_EQ(RefusalWhenFull(m_source),
                  isFull ? u"The maximum number of questions is 128."_s : QString());
        if (isFull)
            return;
        const Question question = RandomShortQuestion();
        AppendQuestion(m_source, question);
        m_model.Append(question);
        m_model.current = m_model.entries.size() - 1;
    }

    void Select()
    {
        m_model.current = static_cast<std::size_t>(m_random.Below(std::ssize(m_model.entries)));
        m_source.SetPosition(static_cast<clsDataSource::Position>(m_model.current));
        ASSERT_EQ(RefusalWithoutSelection(m_source), QString());
    }

    void Up()
    {
        const bool canMove = m_model.current > 0;
        ASSERT_EQ(MoveQuestionUp(m_source), canMove);
        if (canMove) {
            std::swap(Current(), m_model.entries[m_model.current - 1]);
            --m_model.current;
        }
    }

    void Down()
    {
        const bool canMove = m_model.current + 1 < m_model.entries.size();
        ASSERT_EQ(MoveQuestionDown(m_source), canMove);
        if (canMove) {
            std::swap(Current(), m_model.entries[m_model.current + 1]);
            ++m_model.current;
        }
    }

    void Duplicate()
    {
        if (m_model.entries.size() >= 128)
            return;
        Question copy = Current().question;
        const QString trimmed = Trimmed(copy.columnName);
        int n = 1;
        while (m_model.HasColumn(u"%1(%2)"_s.arg(trimmed).arg(n)))
            ++n;
        copy.columnName = u"%1(%2)"_s.arg(trimmed).arg(n);
        copy.title = Trimmed(copy.title);

        const Outcome outcome = DuplicateQuestion(m_source);
        ASSERT_EQ(bool(outcome), copy.columnName.size() <= 255);
        if (outcome)
            return m_model.Append(copy);
        ASSERT_EQ(outcome.error().text, u"Column Name is too long to copy"_s);
    }

    void Edit()
    {
        Question edited = RandomShortQuestion();
        if (m_random.OnceIn(2))
            edited.columnName = Current().question.columnName;
        ReplaceCurrentQuestion(m_source, edited);
        if (!OwnsItems(edited.type))
            edited.items.clear();
        Current().question = edited;
    }

    void Remove()
    {
        RemoveQuestion(m_source);
        m_model.entries.erase(m_model.entries.begin() +
                              static_cast<std::ptrdiff_t>(m_model.current));
        if (m_model.current == m_model.entries.size() && m_model.current > 0)
            --m_model.current;
        const bool selected = !m_model.entries.empty();
        ASSERT_EQ(RefusalWithoutSelection(m_source),
                  selected ? QString() : u"Please select a question."_s);
    }

    Random m_random;
    clsDataSource m_source;
    Model m_model;
    bool m_shrinking = false;
    std::size_t m_most = 0;
};

} // namespace

TEST(QuestionListWalk, AgreesWithAVector)
{
    QuestionListWalk walk;
    for (int i = 0; i < operations; ++i) {
        walk.Step();
        ASSERT_FALSE(testing::Test::HasFailure()) << "operation " << i;
        ASSERT_EQ(walk.Actual(), walk.Expected()) << "operation " << i;
    }
    EXPECT_EQ(walk.Most(), 128u) << "the list was never full";
}
