#include "ui/questions/ask_item.h"

#include "model/texts.h"
#include "ui/common/prompts.h"

using namespace Qt::StringLiterals;

namespace vellumo {

QString AskItem(QWidget *parent, const ItemListHost &host, const std::function<void()> &showHelp)
{
    const QString title = u"New Item"_s;
    QString text = TrimBlanks(AskText(parent, title, host.firstPrompt, showHelp)).toString();
    for (;;) {
        const QString objection = ObjectionToItem(text);
        if (objection.isEmpty())
            return text;
        ShowExclamation(parent, objection);
        text = AskText(parent, title, againPrompt, showHelp);
    }
}

} // namespace vellumo
