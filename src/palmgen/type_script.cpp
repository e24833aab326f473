#include "palmgen/type_script.h"

#include "model/question_types.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What is written for a type. Its lines are in two parts where its items stand between them.
struct TypeScript {
    TypeId type;
    bool secondControl; ///< control 3 is one that a person operates
    QLatin1StringView beforeItems, afterItems = ""_L1;
};

// Case and blanks differ from line to line and stay as they are: the script is kept byte for byte.
constexpr std::array<TypeScript, typeCount> typeScripts = {{
    {TypeId::Text, false,
     "FIELD id 2 at (PREVLEFT PREVBOTTOM+10 135 60) UNDERLINED MAXCHARS 255\r\n"
     "MULTIPLELINES GRAFFITISTATEINDICATOR AT (142 126)\r\n"_L1},
    {TypeId::Numeric, false,
     "FIELD id 2 at (PREVLEFT PREVBOTTOM+10 50 12) UNDERLINED NUMERIC MAXCHARS 9\r\n"_L1},
    {TypeId::PulldownList, false,
     "POPUPTRIGGER \"\" ID 2 AT (10 70 64 12) USABLE LEFTANCHOR\r\n"
     "LIST"_L1,
     " ID 3 AT (PREVLEFT+3 PREVTOP-40 AUTO AUTO) VISIBLEITEMS 8 NONUSABLE\r\n"
     "POPUPLIST ID 2 3\r\n"_L1},
    {TypeId::YesNo, true,
     "CHECKBOX \"Yes\" ID 2 AT (PREVLEFT PREVBOTTOM+10 AUTO AUTO) GROUP 1\r\n"
     "CHECKBOX \"No\" ID 3 AT (PREVRIGHT+10 PREVTOP AUTO AUTO) GROUP 1\r\n"_L1},
    {TypeId::Signature, false, "GADGET ID 2     AT (4 75 152 61)\r\n"_L1},
    {TypeId::Notes, false, "GADGET ID 2 AT(4 50 152 88)\r\n"_L1},
    {TypeId::DateTime, true,
     "LABEL \"Date:\" id 4 AT (24 64)\r\n"
     "SELECTORTRIGGER \"Select Date\" ID 2 AT (PREVLEFT+28 PREVTOP AUTO AUTO)\r\n"
     "LABEL \"Time:\" id 5 AT (24 84)\r\n"
     "SELECTORTRIGGER \"Select Time\" ID 3 AT (PREVLEFT+28 PREVTOP AUTO AUTO)\r\n"_L1},
    {TypeId::Currency, false,
     "LABEL \"$\" id 3 AT (24 64)\r\n"
     "FIELD id 2 at (PREVRIGHT PREVTOP 80 12) UNDERLINED NUMERIC MAXCHARS 10\r\n"_L1},
    {TypeId::ScannedBarcode, true,
     "FIELD id 2 at (PREVLEFT PREVBOTTOM+10 135 60) UNDERLINED MAXCHARS 255\r\n"
     "MULTIPLELINES GRAFFITISTATEINDICATOR AT (142 126)\r\n"
     "BUTTON \"Scan\" id 3 at (66 119 AUTO AUTO)\r\n"_L1},
    {TypeId::Checkboxes, false,
     "TABLE ID 2 AT (13 54 133 82) ROWS 7 COLUMNS 2 COLUMNWIDTHS 12 120\r\n"
     "SCROLLBAR ID 3  AT (PREVRIGHT+2 PREVTOP-1 7 PREVHEIGHT+2) USABLE VALUE 50 MIN 0 MAX 100 "
     "PAGESIZE 10\r\n"
     "LIST"_L1,
     " ID 4 AT (13 PREVTOP AUTO AUTO) VISIBLEITEMS 1 NONUSABLE\r\n"_L1},
}};
static_assert(HasRowPerType(typeScripts));

/// Null for a name that is no type.
const TypeScript *ScriptOf(QStringView name)
{
    const QuestionType *type = TypeNamed(name);
    return type ? &RowOf(typeScripts, type->id) : nullptr;
}

/// Each piece between commas, quoted as it stands and with a blank before it.
QString QuotedItems(QStringView items)
{
    QString quoted;
    if (items.isEmpty())
        return quoted;
    for (const QStringView item : items.tokenize(u','))
        quoted.append(" \""_L1).append(item).append(u'"');
    return quoted;
}

} // namespace

QString ControlLines(QStringView type, QStringView items)
{
    const TypeScript *script = ScriptOf(type);
    if (!script)
        return u"Wrong Type\r\n"_s;
    if (script->afterItems.isEmpty())
        return script->beforeItems;
    return script->beforeItems + QuotedItems(items) + script->afterItems;
}

QString NavigationBody(QStringView type)
{
    const TypeScript *script = ScriptOf(type);
    const QLatin1StringView answer = script && script->secondControl
                                         ? "ID 2 BELOW 3\r\n"
                                           "ID 3 BELOW 99 ABOVE 2\r\n"
                                           "ID 99 BELOW 101 ABOVE 3\r\n"_L1
                                         : "ID 2 BELOW 100\r\n"
                                           "ID 99 BELOW 101 ABOVE 2\r\n"_L1;
    return "INITIALSTATE 0x00000001\r\n"
           "INITIALOBJECTID 2\r\n"
           "Begin\r\n"_L1 +
           answer +
           "ID 101 BELOW 100 ABOVE 99\r\n"
           "ID 100 BELOW 2 ABOVE 101\r\n"
           "END\r\n"_L1;
}

} // namespace vellumo
