#include "cli/notice.h"

#include "model/form_fields.h"

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {

int StepOf(const TextPlace &place)
{
    if (place.question > 0)
        return 2;
    const auto *row = std::ranges::find(formFields, place.field, &FormFieldRow::name);
    return row == formFields.end() ? 0 : row->step;
}

QByteArray ToJson(const Notice &notice)
{
    QJsonObject object = notice.more;
    object.insert(u"kind"_s, notice.kind);
    object.insert(u"code"_s, notice.code);
    object.insert(u"message"_s, notice.text);
    if (!notice.file.isEmpty())
        object.insert(u"file"_s, notice.file);
    if (notice.line > 0)
        object.insert(u"line"_s, notice.line);
    if (notice.step > 0)
        object.insert(u"step"_s, notice.step);
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

QString VisibleLines(const QString &text)
{
    QStringList lines = text.split(u'\n');
    std::ranges::transform(lines, lines.begin(), Visible);
    return lines.join(u'\n');
}

} // namespace vellumo
