#include "help/reader/contents.h"

#include "help/html_text.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Gathers lines from the tags of a file: lists give the level, objects the lines.
class ContentsReader
{
public:
    void Read(const HtmlTag &tag)
    {
        if (tag.name == u"ul")
            ++m_depth;
        else if (tag.name == u"/ul")
            --m_depth;
        else if (tag.name == u"object")
            Begin(tag);
        else if (tag.name == u"param" && m_entry)
            ReadParameter(tag);
        else if (tag.name == u"/object")
            End();
    }

    std::vector<ContentsEntry> TakeEntries() { return std::move(m_entries); }

private:
    void Begin(const HtmlTag &tag)
    {
        m_entry.reset();
        if (tag.Attribute(u"type"_s).compare(u"text/sitemap", Qt::CaseInsensitive) == 0)
            m_entry = ContentsEntry{};
    }

    void ReadParameter(const HtmlTag &tag)
    {
        const QString name = tag.Attribute(u"name"_s).toLower();
        if (name == u"name")
            m_entry->title = tag.Attribute(u"value"_s);
        else if (name == u"local")
            m_entry->page = tag.Attribute(u"value"_s);
    }

    void End()
    {
        if (m_entry && !m_entry->title.isEmpty()) {
            const int below = m_entries.empty() ? 0 : m_entries.back().level + 1;
            m_entry->level = std::clamp(m_depth - 1, 0, std::min(below, deepestLevel));
            m_entries.push_back(*m_entry);
        }
        m_entry.reset();
    }

    /// Trees of windows are walked by recursion, and a file may nest without end.
    static constexpr int deepestLevel = 31;

    int m_depth = 0;
    std::optional<ContentsEntry> m_entry;
    std::vector<ContentsEntry> m_entries;
};

} // namespace

std::vector<ContentsEntry> ReadContents(const QString &html)
{
    ContentsReader reader;
    for (const HtmlTag &tag : TagsOf(html))
        reader.Read(tag);
    return reader.TakeEntries();
}

} // namespace vellumo
