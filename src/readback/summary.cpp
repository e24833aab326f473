#include "readback/summary.h"

#include "model/question_types.h"
#include "platform/code_page.h"
#include "readback/form_reader.h"
#include "readback/text_resources.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QByteArray DataOf(const PalmDatabase &database, QByteArrayView type, quint32 number)
{
    const PalmResource *resource = database.Find(type, number);
    return resource ? resource->data : QByteArray();
}

std::optional<int> QuestionsOf(const PalmDatabase &database)
{
    const QByteArray count = DataOf(database, "flds", 1000);
    if (count.size() != 2)
        return {};
    return static_cast<uchar>(count[0]) * 256 + static_cast<uchar>(count[1]);
}

QString TypeOfCode(char byte)
{
    const QString code = u"0x%1"_s.arg(static_cast<uchar>(byte), 2, 16, QChar(u'0'));
    const auto found = std::ranges::find(questionTypes, code, &QuestionType::kindCode);
    return found == questionTypes.end() ? code : QString(found->name);
}

QStringList ColumnNamesOf(const PalmDatabase &database)
{
    QStringList names;
    if (const Result<StringTable> table = ReadStringTable(DataOf(database, "tSTL", 1004))) {
        for (const QByteArray &name : table->entries)
            names += FromWindows1252(name);
    }
    return names;
}

QString TitleOf(const Form &form)
{
    const auto title = std::ranges::find(form.objects, ObjectKind::Title, &FormObject::kind);
    return title == form.objects.end() ? QString() : FromWindows1252(title->text);
}

} // namespace

DatabaseSummary Summarize(const PalmDatabase &database)
{
    DatabaseSummary summary = {.name = FromWindows1252(database.name),
                               .type = FromWindows1252(database.type),
                               .creator = FromWindows1252(database.creator),
                               .size = database.size,
                               .resources = database.resources.size(),
                               .questions = QuestionsOf(database),
                               .columnNames = ColumnNamesOf(database)};
    for (const char code : DataOf(database, "ques", 1002))
        summary.types += TypeOfCode(code);
    for (const PalmResource &resource : database.resources) {
        if (resource.type != "tFRM")
            continue;
        if (const Result<Form> form = ReadForm(resource.data))
            summary.titles += TitleOf(*form);
    }
    return summary;
}

} // namespace vellumo
