#include "palmgen/control_lines.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What a type's lines are, in two parts where its items stand between them.
struct ControlBlock {
    QLatin1StringView type, beforeItems, afterItems = ""_L1;
};

// Case and blanks differ from line to line and stay as they are: the script is kept byte for byte.
constexpr ControlBlock controlBlocks[] = {
    {"Text"_L1, "FIELD id 2 at (PREVLEFT PREVBOTTOM+10 135 60) UNDERLINED MAXCHARS 255\r\n"
                "MULTIPLELINES GRAFFITISTATEINDICATOR AT (142 126)\r\n"_L1},
    {"Numeric"_L1,
     "FIELD id 2 at (PREVLEFT PREVBOTTOM+10 50 12) UNDERLINED NUMERIC MAXCHARS 9\r\n"_L1},
    {"Currency"_L1,
     "LABEL \"$\" id 3 AT (24 64)\r\n"
     "FIELD id 2 at (PREVRIGHT PREVTOP 80 12) UNDERLINED NUMERIC MAXCHARS 10\r\n"_L1},
    {"Notes"_L1, "GADGET ID 2 AT(4 50 152 88)\r\n"_L1},
    {"Yes/No"_L1, "CHECKBOX \"Yes\" ID 2 AT (PREVLEFT PREVBOTTOM+10 AUTO AUTO) GROUP 1\r\n"
                  "CHECKBOX \"No\" ID 3 AT (PREVRIGHT+10 PREVTOP AUTO AUTO) GROUP 1\r\n"_L1},
    {"Date/Time"_L1,
     "LABEL \"Date:\" id 4 AT (24 64)\r\n"
     "SELECTORTRIGGER \"Select Date\" ID 2 AT (PREVLEFT+28 PREVTOP AUTO AUTO)\r\n"
     "LABEL \"Time:\" id 5 AT (24 84)\r\n"
     "SELECTORTRIGGER \"Select Time\" ID 3 AT (PREVLEFT+28 PREVTOP AUTO AUTO)\r\n"_L1},
    {"Signature"_L1, "GADGET ID 2     AT (4 75 152 61)\r\n"_L1},
    {"Scanned Barcode"_L1,
     "FIELD id 2 at (PREVLEFT PREVBOTTOM+10 135 60) UNDERLINED MAXCHARS 255\r\n"
     "MULTIPLELINES GRAFFITISTATEINDICATOR AT (142 126)\r\n"
     "BUTTON \"Scan\" id 3 at (66 119 AUTO AUTO)\r\n"_L1},
    {"Pulldown List"_L1,
     "POPUPTRIGGER \"\" ID 2 AT (10 70 64 12) USABLE LEFTANCHOR\r\n"
     "LIST"_L1,
     " ID 3 AT (PREVLEFT+3 PREVTOP-40 AUTO AUTO) VISIBLEITEMS 8 NONUSABLE\r\n"
     "POPUPLIST ID 2 3\r\n"_L1},
    {"Checkboxes"_L1,
     "TABLE ID 2 AT (13 54 133 82) ROWS 7 COLUMNS 2 COLUMNWIDTHS 12 120\r\n"
     "SCROLLBAR ID 3  AT (PREVRIGHT+2 PREVTOP-1 7 PREVHEIGHT+2) USABLE VALUE 50 MIN 0 MAX 100 "
     "PAGESIZE 10\r\n"
     "LIST"_L1,
     " ID 4 AT (13 PREVTOP AUTO AUTO) VISIBLEITEMS 1 NONUSABLE\r\n"_L1},
};

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
    const auto block = std::ranges::find_if(
        controlBlocks, [type](const ControlBlock &known) { return known.type == type; });
    if (block == std::end(controlBlocks))
        return u"Wrong Type\r\n"_s;
    if (block->afterItems.isEmpty())
        return block->beforeItems;
    return block->beforeItems + QuotedItems(items) + block->afterItems;
}

} // namespace vellumo
