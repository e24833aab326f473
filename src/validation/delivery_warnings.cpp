#include "validation/delivery_warnings.h"

#include "model/form_fields.h"
#include "model/question_types.h"
#include "model/unreadable_texts.h"

#include <QHash>

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

struct DeliveryCheck {
    QLatin1StringView code;
    bool (*applies)(QStringView text);
    QLatin1StringView reason;
};

/// Whether the text ends in a backslash that is not itself escaped by another.
bool EndsInEscape(QStringView text)
{
    const auto last = std::find_if(text.rbegin(), text.rend(), [](QChar c) { return c != u'\\'; });
    return (last - text.rbegin()) % 2 == 1;
}

constexpr QLatin1StringView escapes =
    "a backslash starts an escape in the script, so it will not arrive as typed"_L1;

constexpr DeliveryCheck backslash = {
    "backslash"_L1, [](QStringView text) { return text.contains(u'\\') && !EndsInEscape(text); },
    escapes};

/// Whether the text has an escape other than \n; it does not end in one that is incomplete.
bool HasOtherEscapes(QStringView text)
{
    for (qsizetype at = text.indexOf(u'\\'); at >= 0; at = text.indexOf(u'\\', at + 2)) {
        if (text[at + 1] != u'n')
            return true;
    }
    return false;
}

// In a question, \n is what breaks its line on the handheld, and typed for that.
constexpr DeliveryCheck backslashInQuestion = {
    "backslash"_L1, [](QStringView text) { return !EndsInEscape(text) && HasOtherEscapes(text); },
    escapes};

constexpr DeliveryCheck backslashAtEnd = {
    "backslash"_L1, EndsInEscape,
    "a backslash at the end takes the closing quote in the script with it and breaks the build"_L1};

constexpr DeliveryCheck doubleQuote = {
    "double-quote"_L1, [](QStringView text) { return text.contains(u'"'); },
    "the script does not escape a double quote here, so it will not arrive as typed"_L1};

constexpr DeliveryCheck lineBreak = {
    "line-break"_L1, [](QStringView text) { return text.contains(u'\n') || text.contains(u'\r'); },
    "a line break ends the text in the script too early and breaks the build"_L1};

constexpr DeliveryCheck comma = {"comma-in-item"_L1,
                                 [](QStringView text) { return text.contains(u','); },
                                 "a comma ends an item, so this one will arrive as several"_L1};

// The script escapes double quotes in the description and in question texts, and nowhere else.
// The review lets neither a backslash nor a double quote into the form name.
constexpr DeliveryCheck deliveredNameChecks[] = {lineBreak};
constexpr DeliveryCheck escapedTextChecks[] = {backslash, backslashAtEnd, lineBreak};
constexpr DeliveryCheck questionChecks[] = {backslashInQuestion, backslashAtEnd, lineBreak};
constexpr DeliveryCheck rawTextChecks[] = {backslash, backslashAtEnd, doubleQuote, lineBreak};
constexpr DeliveryCheck itemChecks[] = {backslash, backslashAtEnd, doubleQuote, lineBreak, comma};

struct FieldChecks {
    FormField field;
    std::span<const DeliveryCheck> checks;
};

// The data folder's backslashes are doubled in the script, and its rule refuses the rest.
constexpr std::array fieldChecks = {
    FieldChecks{FormField::Name, deliveredNameChecks},
    FieldChecks{FormField::Version, rawTextChecks},
    FieldChecks{FormField::Description, escapedTextChecks},
    FieldChecks{FormField::DataFolder, {}},
};
static_assert(HasRowPerField(fieldChecks));

/// One walk over a project, which gathers the warnings in their order.
class Walk
{
public:
    explicit Walk(const Project &project) : m_project(project), m_items(project.source.ItemsById())
    {
        FindOwners();
    }

    std::vector<DeliveryWarning> Run()
    {
        for (const FieldChecks &row : fieldChecks)
            CheckText(row.checks, m_project.*RowOf(row.field).text, {RowOf(row.field).name});
        int position = 0;
        for (const QuestionRow &question : m_project.source.Questions().Rows())
            CheckQuestion(question, ++position);
        CheckOwners();
        for (const UnreadableText &unreadable : FindUnreadableTexts(m_project))
            Warn("unreadable"_L1, unreadable.place, unreadable.text, UnreadableReason());
        return std::move(m_warnings);
    }

private:
    void FindOwners()
    {
        int position = 0;
        for (const QuestionRow &question : m_project.source.Questions().Rows()) {
            ++position;
            if (HasItems(question.Type) && !m_owners.contains(question.Id))
                m_owners.insert(question.Id, position);
        }
    }

    void CheckQuestion(const QuestionRow &question, int position)
    {
        CheckText(rawTextChecks, question.Title, {"title"_L1, position});
        CheckText(rawTextChecks, question.ColumnName, {"column name"_L1, position});
        if (const int other = EarlierUse(m_columnNames, question.ColumnName, position))
            Warn("duplicate-column-name"_L1, {"column name"_L1, position}, question.ColumnName,
                 u"question %1 has the same column name"_s.arg(other));
        CheckText(questionChecks, question.Question, {"question text"_L1, position});
        if (!TypeNamed(question.Type))
            Warn("unknown-type"_L1, {"type"_L1, position}, question.Type,
                 u"this is none of the question types, which breaks the build"_s);
        if (const int other = EarlierUse(m_ids, question.Id, position))
            Warn("duplicate-id"_L1, {"Id"_L1, position}, QString::number(question.Id),
                 u"question %1 has the same Id, and items go by the Id"_s.arg(other));
        if (HasItems(question.Type))
            CheckItems(question, position);
    }

    void CheckItems(const QuestionRow &question, int position)
    {
        const QStringList items = m_items.value(question.Id);
        if (items.isEmpty())
            Warn("no-items"_L1, {"item list"_L1, position}, {},
                 u"a list question without items stops the creation of the script"_s);
        else if (items.size() == 1 && items.front().isEmpty())
            Warn("empty-only-item"_L1, {"item"_L1, position}, {},
                 u"an empty item that is the only one will not arrive"_s);
        if (m_owners.value(question.Id) != position)
            return;
        for (const QString &item : items)
            CheckText(itemChecks, item, {"item"_L1, position});
    }

    void CheckOwners()
    {
        for (const ItemRow &item : m_project.source.Items().Rows()) {
            if (!m_owners.contains(item.Id))
                Warn("stray-item"_L1, {"item"_L1}, item.Item,
                     u"no list question has its Id, %1, so it will not arrive"_s.arg(item.Id));
        }
    }

    void CheckText(std::span<const DeliveryCheck> checks, const QString &text,
                   const TextPlace &place)
    {
        for (const DeliveryCheck &check : checks) {
            if (check.applies(text))
                Warn(check.code, place, text, check.reason);
        }
    }

    void Warn(QLatin1StringView code, const TextPlace &place, const QString &text,
              const QString &reason)
    {
        m_warnings.push_back({code, place, text, reason});
    }

    /// Position of the first question with this key; 0 where that is the one at hand.
    template <typename Key>
    static int EarlierUse(QHash<Key, int> &firstUses, const Key &key, int position)
    {
        const int first = firstUses.value(key);
        if (first == 0)
            firstUses.insert(key, position);
        return first;
    }

    const Project &m_project;
    const QHash<int, QStringList> m_items; ///< by Id
    QHash<int, int> m_owners; ///< by Id, the position of the first list question with it
    QHash<QString, int> m_columnNames;
    QHash<int, int> m_ids;
    std::vector<DeliveryWarning> m_warnings;
};

} // namespace

std::vector<DeliveryWarning> FindDeliveryWarnings(const Project &project)
{
    return Walk(project).Run();
}

} // namespace vellumo
