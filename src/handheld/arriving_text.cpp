#include "handheld/arriving_text.h"

#include "handheld/script_text.h"
#include "platform/code_page.h"

namespace vellumo {
namespace {

QByteArray InterpretWording(QByteArrayView bytes)
{
    return InterpretScriptText(WithEscapedQuotes(bytes));
}

/// No escape goes on behind a character that the code page lacks, so that what is between two of
/// them can be interpreted by itself.
QString Arriving(QStringView typed, QByteArray (*interpret)(QByteArrayView bytes))
{
    QString arriving;
    while (!typed.isEmpty()) {
        QByteArray bytes;
        const qsizetype lacking = AppendWindows1252(bytes, typed);
        arriving += FromWindows1252(interpret(bytes));
        if (lacking < 0)
            break;
        arriving += typed[lacking];
        typed = typed.sliced(lacking + 1);
    }
    return arriving;
}

} // namespace

QString ArrivingText(QStringView typed)
{
    return Arriving(typed, InterpretScriptText);
}

QString ArrivingWording(QStringView typed)
{
    return Arriving(typed, InterpretWording);
}

QStringList ArrivingItems(const QStringList &typed)
{
    const QString joined = typed.join(u',');
    QStringList items;
    if (!joined.isEmpty())
        for (const QString &item : joined.split(u','))
            items += ArrivingText(item);
    return items;
}

} // namespace vellumo
