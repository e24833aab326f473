#include "readback/summary.h"

#include "platform/code_page.h"
#include "readback/database_content.h"
#include "readback/delivered_types.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

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
                               .resources = database.resources.size()};
    const DatabaseContent content = DecodeDatabase(database);
    if (content.questionCount && *content.questionCount)
        summary.questions = int(**content.questionCount);
    if (content.typeCodes && *content.typeCodes)
        for (const char code : **content.typeCodes)
            summary.types += NameOfTypeCode(static_cast<quint8>(code));
    if (content.columnNames && *content.columnNames)
        for (const QByteArray &name : (*content.columnNames)->entries)
            summary.columnNames += FromWindows1252(name);
    for (const auto &[number, form] : content.forms)
        if (form)
            summary.titles += TitleOf(*form);
    return summary;
}

} // namespace vellumo
