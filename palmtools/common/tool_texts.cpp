#include "palmtools/common/tool_texts.h"

namespace palmtools {

bool AnswerWish(Wish wish, const ToolTexts &texts, std::ostream &out)
{
    if (wish == Wish::help)
        out << texts.usage << texts.help;
    if (wish == Wish::version)
        out << texts.name << " " PALMTOOLS_VERSION " (Vellumo Designer)\n";
    return wish != Wish::work;
}

} // namespace palmtools
