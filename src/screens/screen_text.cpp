#include "screens/screen_text.h"

#include "platform/code_page.h"

namespace vellumo {

QString ShownText(QStringView typed)
{
    QString text = typed.toString();
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        else if (text[i].category() == QChar::Other_Control || text[i].isSurrogate() ||
                 text[i].isNonCharacter())
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

QString ShownText(QByteArrayView text)
{
    return ShownText(FromWindows1252(text));
}

} // namespace vellumo
