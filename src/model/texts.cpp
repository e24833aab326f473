#include "model/texts.h"

#include "platform/code_page.h"

using namespace Qt::StringLiterals;

namespace vellumo {

QString Describe(const TextPlace &place)
{
    if (place.question > 0)
        return u"The %1 of question %2"_s.arg(place.field).arg(place.question);
    return u"The %1"_s.arg(place.field);
}

QString Quote(const TextPlace &place, const QString &text)
{
    QString quote = place.question > 0 ? u"question %1, "_s.arg(place.question) : QString();
    quote += place.field;
    if (!text.isEmpty())
        quote += u": \"%1\""_s.arg(text);
    return quote;
}

Outcome AppendEncoded(QByteArray &bytes, QStringView text, const TextPlace &place)
{
    const qsizetype lacking = AppendWindows1252(bytes, text);
    if (lacking < 0)
        return done;
    return Error{u"%1 has the character %2, which windows-1252 does not have."_s.arg(
        Describe(place), DescribeCharacter(text, lacking))};
}

QStringView TrimBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

} // namespace vellumo
