#pragma once

#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <utility>

namespace vellumo {

/// The texts of elements that go by their names, in UTF-8, as they are gathered from a file. Made
/// once and used for one record after the other: most texts need no memory of their own.
class NamedTexts
{
public:
    static constexpr size_t most = 6;

    /// Forgets all texts; those of these names, at most so many, are gathered next.
    void Begin(std::span<const QLatin1StringView> names)
    {
        Q_ASSERT(names.size() <= most);
        m_names = names;
        m_met = {};
    }

    /// Where the text of an element is to be appended. Nowhere where its name is none of them, or
    /// was met before.
    std::string *Place(std::string_view name)
    {
        const auto found = std::ranges::find(m_names, QLatin1StringView(name));
        const auto i = static_cast<size_t>(found - m_names.begin());
        if (found == m_names.end() || std::exchange(m_met[i], true))
            return nullptr;
        m_texts[i].clear();
        return &m_texts[i];
    }

    /// Whether the name at this place was met.
    bool Has(size_t i) const { return m_met[i]; }
    /// The text of the name at this place, which was met.
    const std::string &operator[](size_t i) const { return m_texts[i]; }

private:
    std::span<const QLatin1StringView> m_names;
    std::array<bool, most> m_met = {};
    std::array<std::string, most> m_texts;
};

} // namespace vellumo
