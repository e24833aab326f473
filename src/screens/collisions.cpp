#include "screens/collisions.h"

#include "handheld/screen_geometry.h"
#include "screens/form_parts.h"
#include "screens/label_lines.h"
#include "screens/object_place.h"
#include "screens/table_rows.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr QRect wholeScreen(0, 0, screen::width, screen::height);
constexpr int edge = 3;             // pixels that mark what is beyond them
constexpr qsizetype mostMarks = 50; // of a form; only one that was made up has more

/// What an object takes of the screen; nothing where it is no obstacle to a text.
QRect ObstacleOf(const FormObject &object)
{
    switch (object.kind) {
    case ObjectKind::Label:
        return LinesOf(object).value(0).place;
    case ObjectKind::Title:
    case ObjectKind::PopupList:
    case ObjectKind::GraffitiIndicator:
        return {};
    default:
        return IsShown(object) ? PlaceOf(object) : QRect();
    }
}

/// Marks the edges of the screen that a place goes beyond.
QList<Collision> BeyondTheScreen(const QRect &place)
{
    const QString reason = u"leaves the screen"_s;
    const QRect seen = place & wholeScreen;
    QList<Collision> found;
    if (place.right() > wholeScreen.right())
        found.append({{screen::width - edge, seen.y(), edge, seen.height()}, reason});
    if (place.bottom() > wholeScreen.bottom())
        found.append({{seen.x(), screen::height - edge, seen.width(), edge}, reason});
    found.removeIf([](const Collision &collision) { return collision.place.isEmpty(); });
    return found;
}

/// As many as a drawing has, which tells where there are more.
QList<Collision> Bounded(QList<Collision> found)
{
    if (found.size() > mostMarks) {
        found = found.first(mostMarks);
        found.last().reason += u", and there are more"_s;
    }
    return found;
}

/// Gathers what is wrong on one form.
class Search
{
public:
    explicit Search(const Form &form) : m_form(form), m_question(QuestionOf(form))
    {
        for (const FormObject &object : form.objects) {
            const QRect place = ObstacleOf(object) & wholeScreen;
            if (!place.isEmpty() && &object != m_question)
                m_obstacles.append({place, u"meets "_s + Describe(object)});
        }
    }

    QList<Collision> Run()
    {
        if (const FormObject *title = TitleOf(m_form))
            CheckLine(TitleLine(*title));
        if (m_question)
            for (const TextLine &line : LinesOf(*m_question))
                CheckLine(line);
        for (const FormObject &object : m_form.objects)
            if (object.kind == ObjectKind::Table)
                for (const TableRow &row : RowsOf(object, m_form))
                    CheckCaption(row);
        return Bounded(std::move(m_found));
    }

private:
    void CheckLine(const TextLine &line)
    {
        // Its topmost pixels are what keeps it from the line above.
        const QRect place = line.place.adjusted(0, 1, 0, 0);
        for (const Collision &obstacle : m_obstacles) {
            if (const QRect common = place & obstacle.place; !common.isEmpty())
                m_found.append({common, obstacle.reason});
        }
        m_found += BeyondTheScreen(place);
    }

    void CheckCaption(const TableRow &row)
    {
        const QRect end(row.captionEnd - edge, row.box.y(), edge, screen::lineHeight);
        if (row.caption.place.width() > row.room)
            m_found.append({end, u"is cut off here"_s});
    }

    const Form &m_form;
    const FormObject *m_question; ///< null where there is none
    QList<Collision> m_obstacles;
    QList<Collision> m_found;
};

} // namespace

QList<Collision> FindCollisions(const Form &form)
{
    return Search(form).Run();
}

QList<Collision> FindCollisionsOfList(const FormObject &list)
{
    return BeyondTheScreen(PlaceOf(list).adjusted(-1, -1, 1, 1));
}

} // namespace vellumo
