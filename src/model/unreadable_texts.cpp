#include "model/unreadable_texts.h"

#include "model/form_fields.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr size_t mostShown = 10;
constexpr qsizetype longestShown = 60;

class Finder
{
public:
    void Check(const TextPlace &place, const QString &text)
    {
        // One character is looked for in less time, and most texts do not have it.
        if (text.contains(u'>') && text.contains(valueEnd))
            m_found.push_back({place, text});
    }

    void CheckQuestions(const clsDataSource &source)
    {
        int position = 0;
        for (const QuestionRow &row : source.Questions().Rows()) {
            ++position;
            if (!m_positions.contains(row.Id))
                m_positions.insert(row.Id, position);
            Check({"type"_L1, position}, row.Type);
            Check({"title"_L1, position}, row.Title);
            Check({"column name"_L1, position}, row.ColumnName);
            Check({"question text"_L1, position}, row.Question);
        }
        for (const ItemRow &row : source.Items().Rows())
            Check({"item"_L1, m_positions.value(row.Id)}, row.Item);
    }

    std::vector<UnreadableText> Take() { return std::move(m_found); }

private:
    QHash<int, int> m_positions; ///< of questions, by their Id
    std::vector<UnreadableText> m_found;
};

/// On one line, and not too long for a box.
QString Shortened(const QString &text)
{
    QString line = text.simplified();
    const qsizetype end = line.indexOf(valueEnd) + valueEnd.size();
    if (line.size() <= longestShown)
        return line;
    return end <= longestShown ? line.first(longestShown) + u'\u2026'
                               : u'\u2026' + line.first(end).last(longestShown);
}

} // namespace

std::vector<UnreadableText> FindUnreadableTexts(const Project &project)
{
    Finder finder;
    for (const FormFieldRow &row : formFields)
        finder.Check({row.name}, project.*row.text);
    finder.CheckQuestions(project.source);
    for (const QString &title : project.TitleList)
        finder.Check({"title history"_L1}, title);
    return finder.Take();
}

QString UnreadableReason()
{
    return u"\"%1\" ends a text in a project file, so the file cannot be opened again once it is saved"_s
        .arg(valueEnd);
}

QString UnreadableNotice(const Project &project)
{
    const std::vector<UnreadableText> texts = FindUnreadableTexts(project);
    if (texts.empty())
        return {};
    QString notice =
        u"The project is saved, but its file cannot be opened again: \"%1\" ends a text "
        "too early. Please change what has it, and save again:\n"_s.arg(valueEnd);
    for (size_t i = 0; i < texts.size() && i < mostShown; ++i)
        notice += u'\n' + Quote(texts[i].place, Shortened(texts[i].text));
    if (texts.size() > mostShown)
        notice += u"\nand %1 more"_s.arg(texts.size() - mostShown);
    return notice;
}

} // namespace vellumo
