#include "cli/notice.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace vellumo {

QByteArray ToJson(const Notice &notice)
{
    QJsonObject object = {
        {u"kind"_s, notice.kind}, {u"code"_s, notice.code}, {u"message"_s, notice.text}};
    if (!notice.file.isEmpty())
        object.insert(u"file"_s, notice.file);
    if (notice.line > 0)
        object.insert(u"line"_s, notice.line);
    if (notice.question > 0)
        object.insert(u"question"_s, notice.question);
    if (!notice.field.isEmpty())
        object.insert(u"field"_s, notice.field);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString Visible(const QString &text)
{
    QString visible;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control)
            visible += u"\\x%1"_s.arg(int(character.unicode()), 2, 16, QChar(u'0'));
        else
            visible += character;
    }
    return visible;
}

} // namespace vellumo
