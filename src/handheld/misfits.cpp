#include "handheld/misfits.h"

#include "handheld/font_widths.h"
#include "handheld/line_places.h"
#include "handheld/question_fit.h"
#include "handheld/screen_geometry.h"
#include "handheld/script_text.h"
#include "platform/code_page.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Whether a text surely fits into its place, as nearly all items do: such a one
/// arrives as typed, and what a comma makes of one is no wider than the whole.
bool FitsAtAGlance(QStringView text, const LinePlace &place)
{
    const FontWidths &widths = WidthsOf(place.font);
    quint32 width = 0;
    for (const QChar c : text) {
        if (c.unicode() >= 0x80 || c == u'\\')
            return false;
        width += widths[c.unicode()];
    }
    return width <= quint32(place.width);
}

/// One walk over a project, which gathers the misfits in their order.
class Walk
{
public:
    explicit Walk(const Project &project) : m_project(project), m_items(project.source.ItemsById())
    {}

    std::vector<DeliveryWarning> Run()
    {
        const TextPlace description = {"description"_L1};
        if (Encode(m_project.Description))
            CheckLetters(Wording(), description, m_project.Description);
        int position = 0;
        for (const QuestionRow &question : m_project.source.Questions().Rows())
            CheckQuestion(question, ++position);
        return std::move(m_misfits);
    }

private:
    void CheckQuestion(const QuestionRow &question, int position)
    {
        const QuestionType *type = TypeNamed(question.Type);
        CheckTitle(question.Title, {"title"_L1, position});
        CheckText(question.Question, {"question text"_L1, position}, FreeLines(type));
        if (!type || !type->items || m_measured.contains(question.Id))
            return;
        m_measured.insert(question.Id);
        const LinePlace &line = type->id == TypeId::Checkboxes ? captionPlace : listPlace;
        QSet<QString> seen; // of equal items the first is told
        for (const QString &item : m_items.value(question.Id)) {
            if (FitsAtAGlance(item, line) || seen.contains(item))
                continue;
            seen.insert(item);
            CheckItem(item, {"item"_L1, position}, line);
        }
    }

    void CheckTitle(const QString &title, const TextPlace &place)
    {
        if (!Encode(title))
            return;
        const QByteArray arriving = InterpretScriptText(m_bytes);
        Warn(titlePlace.code, place, title, MisfitIn(titlePlace, arriving));
        CheckLetters(arriving, place, title);
    }

    void CheckText(const QString &text, const TextPlace &place, int freeLines)
    {
        if (!Encode(text))
            return;
        const QByteArray arriving = Wording();
        Warn("question-too-wide"_L1, place, text, QuestionMisfit(arriving, freeLines));
        CheckLetters(arriving, place, text);
    }

    void CheckItem(const QString &item, const TextPlace &place, const LinePlace &line)
    {
        if (!Encode(item))
            return;
        const QList<QByteArray> arriving = InterpretItems(m_bytes);
        QString misfit;
        for (auto part = arriving.begin(); part != arriving.end() && misfit.isEmpty(); ++part)
            misfit = MisfitIn(line, *part);
        Warn(line.code, place, item, misfit);
        CheckLetters(arriving.join(), place, item);
    }

    void CheckLetters(QByteArrayView arriving, const TextPlace &place, const QString &text)
    {
        Warn("not-on-handheld"_L1, place, text, LetterMisfit(arriving));
    }

    /// Warns where there is a reason.
    void Warn(QLatin1StringView code, const TextPlace &place, const QString &text,
              const QString &reason)
    {
        if (!reason.isEmpty())
            m_misfits.push_back({code, place, text, reason});
    }

    /// Makes the bytes of a text those at hand; false where windows-1252 lacks a character of it.
    bool Encode(QStringView text)
    {
        m_bytes.resize(0); // which keeps its memory
        return AppendWindows1252(m_bytes, text) < 0;
    }

    /// What arrives of a text in free wording, which is at hand.
    QByteArray Wording() const { return InterpretScriptText(WithEscapedQuotes(m_bytes)); }

    const Project &m_project;
    const QHash<int, QStringList> m_items; ///< by Id
    QSet<int> m_measured;                  ///< the Ids whose items were
    QByteArray m_bytes;                    ///< of the text at hand
    std::vector<DeliveryWarning> m_misfits;
};

} // namespace

std::vector<DeliveryWarning> FindMisfits(const Project &project)
{
    return Walk(project).Run();
}

} // namespace vellumo
