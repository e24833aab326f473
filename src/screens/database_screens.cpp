#include "screens/database_screens.h"

#include "platform/code_page.h"
#include "readback/database_content.h"
#include "readback/delivered_types.h"
#include "readback/soundness_check.h"
#include "screens/form_parts.h"
#include "screens/screen_misfits.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The text of an object, which need not be there.
QByteArray TextOf(const FormObject *object)
{
    return object ? object->text : QByteArray();
}

/// A text of a database; empty where it has none that can be read.
QByteArray BytesOf(const Decoded<QByteArray> &text)
{
    return text && *text ? **text : QByteArray();
}

QString TextOf(const Decoded<QByteArray> &text)
{
    return FromWindows1252(BytesOf(text));
}

QDateTime TimeOf(quint32 secondsSince1904)
{
    if (secondsSince1904 == 0)
        return {};
    return QDateTime(QDate(1904, 1, 1), QTime(0, 0), Qt::UTC).addSecs(secondsSince1904);
}

Screen ScreenOf(quint32 number, const Result<Form> &form, const DatabaseContent &content)
{
    Screen screen = {.number = number, .form = form};
    const qsizetype index = qsizetype(number) - 1;
    if (content.columnNames && *content.columnNames)
        screen.columnName = FromWindows1252((*content.columnNames)->entries.value(index));
    if (content.typeCodes && *content.typeCodes && index >= 0 &&
        index < (*content.typeCodes)->size())
        screen.type = NameOfTypeCode(static_cast<quint8>((**content.typeCodes)[index]));
    if (!form)
        return screen;
    const FormObject *list = ItemsOf(*form);
    const FormTexts texts = {TextOf(TitleOf(*form)), TextOf(QuestionOf(*form)),
                             list ? list->items : QList<QByteArray>()};
    screen.title = FromWindows1252(texts.title);
    screen.question = FromWindows1252(texts.question);
    for (const QByteArray &item : texts.items)
        screen.items += FromWindows1252(item);
    screen.misfits = MisfitsOf(texts, screen.type);
    return screen;
}

} // namespace

DatabaseScreens ScreensOf(const PalmDatabase &database)
{
    const DatabaseContent content = DecodeDatabase(database);
    DatabaseScreens screens = {.name = TextOf(content.formName),
                               .version = TextOf(content.version),
                               .description = TextOf(content.description),
                               .created = TimeOf(database.created),
                               .findings = CheckSoundness(database),
                               .misfit = MisfitOfDescription(BytesOf(content.description))};
    if (screens.name.isEmpty())
        screens.name = FromWindows1252(database.name);
    for (const auto &[number, form] : content.forms)
        screens.screens += ScreenOf(number, form, content);
    return screens;
}

} // namespace vellumo
