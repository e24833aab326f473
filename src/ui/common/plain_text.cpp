#include "ui/common/plain_text.h"

#include <QPlainTextEdit>
#include <QTextDocument>

namespace vellumo {

QString TextOf(const QPlainTextEdit &box)
{
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

} // namespace vellumo
