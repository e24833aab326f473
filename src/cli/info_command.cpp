#include "cli/info_command.h"

#include "cli/inputs.h"
#include "cli/verify_command.h"
#include "model/form_fields.h"
#include "model/project_reader.h"
#include "model/question_types.h"
#include "readback/recovered_project.h"
#include "readback/summary.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What is told of either kind of file: facts with their names, then the questions.
struct Info {
    struct Fact {
        QString name;
        QJsonValue value;
    };
    QList<Fact> facts;
    // Of each question.
    QStringList types = {}, columnNames = {}, titles = {};
    QJsonArray questions = {}; ///< with all their texts, as objects
    std::vector<Notice> remarks = {};
};

QJsonArray QuestionObjects(const clsDataSource &source)
{
    const QHash<int, QStringList> items = source.ItemsById();
    QJsonArray objects;
    for (const QuestionRow &row : source.Questions().Rows()) {
        QJsonObject object = {{u"number"_s, objects.size() + 1},
                              {u"type"_s, row.Type},
                              {u"columnName"_s, row.ColumnName},
                              {u"title"_s, row.Title},
                              {u"question"_s, row.Question}};
        if (HasItems(row.Type))
            object.insert(u"items"_s, QJsonArray::fromStringList(items.value(row.Id)));
        objects.append(object);
    }
    return objects;
}

Info InfoOf(const Project &project, qsizetype size)
{
    Info info = {{{u"format"_s, u"project"_s}}};
    for (const FormFieldRow &row : formFields)
        if (!row.summaryName.isEmpty())
            info.facts.append({row.summaryName, project.*row.text});
    info.facts.append({u"size"_s, size});
    info.facts.append({u"questions"_s, project.source.QuestionCount()});
    info.facts.append({u"items"_s, project.source.Items().Count()});
    for (const QuestionRow &row : project.source.Questions().Rows()) {
        info.types += row.Type;
        info.columnNames += row.ColumnName;
        info.titles += row.Title;
    }
    info.questions = QuestionObjects(project.source);
    return info;
}

Info InfoOf(const DatabaseSummary &summary)
{
    Info info = {{{u"format"_s, u"database"_s},
                  {u"name"_s, summary.name},
                  {u"type"_s, summary.type},
                  {u"creator"_s, summary.creator},
                  {u"size"_s, summary.size},
                  {u"resources"_s, summary.resources}},
                 summary.types,
                 summary.columnNames,
                 summary.titles};
    if (summary.questions)
        info.facts.append({u"questions"_s, *summary.questions});
    return info;
}

qsizetype LongestList(const Info &info)
{
    return std::max({info.types.size(), info.columnNames.size(), info.titles.size()});
}

void TellPerson(const Info &info, const Console &console)
{
    const auto tell = [&console](const QString &line) {
        console.Write(Visible(line).toLocal8Bit() + '\n');
    };
    for (const Info::Fact &fact : info.facts)
        tell(u"%1: %2"_s.arg(fact.name, fact.value.toVariant().toString()));
    // The lists of a database need not agree: value() is empty beyond the end of one.
    for (qsizetype i = 0; i < LongestList(info); ++i)
        tell(u"%1. %2, %3: %4"_s.arg(QString::number(i + 1), info.types.value(i),
                                     info.columnNames.value(i), info.titles.value(i)));
}

QJsonObject ForProgram(const Info &info)
{
    QJsonObject object = {{u"types"_s, QJsonArray::fromStringList(info.types)},
                          {u"columnNames"_s, QJsonArray::fromStringList(info.columnNames)},
                          {u"titles"_s, QJsonArray::fromStringList(info.titles)},
                          {u"questionList"_s, info.questions}};
    for (const Info::Fact &fact : info.facts)
        object.insert(fact.name, fact.value);
    return object;
}

Result<Info> ReadInfo(const QByteArray &bytes, const QString &inputName)
{
    if (LooksLikeDatabase(bytes)) {
        const Result<PalmDatabase> database = ReadDatabase(bytes);
        if (!database)
            return database.error();
        Info info = InfoOf(Summarize(*database));
        info.questions = QuestionObjects(RecoverProject(*database).source);
        info.remarks = RemarkNotices(*database, inputName);
        return info;
    }
    const Result<Project> project = ReadProject(bytes);
    if (!project)
        return project.error();
    return InfoOf(*project, bytes.size());
}

Ending TellInfoOf(const QString &input, const CommandLine &line, const Console &console)
{
    const Result<QByteArray> bytes = ReadInput(input, eitherLimit, console);
    if (!bytes)
        return Refuse(console, Exit::Unreadable, bytes.error());
    const Result<Info> info = ReadInfo(*bytes, InputName(input));
    if (!info)
        return Refuse(console, Exit::Unreadable,
                      {info.error().text, InputName(input), info.error().line});
    if (!console.json && line.inputs.size() > 1)
        console.Write(Visible("file: "_L1 + InputName(input)).toLocal8Bit() + '\n');
    if (!console.json)
        TellPerson(*info, console);
    for (const Notice &remark : info->remarks)
        console.Tell(remark);
    Ending ending(Exit::Fine, "info"_L1, u"It can be read."_s);
    if (console.json)
        ending.more = ForProgram(*info);
    return ending;
}

} // namespace

Exit TellInfo(const CommandLine &line, const Console &console)
{
    return ForEachInput(line, console,
                        [&](const QString &input) { return TellInfoOf(input, line, console); });
}

} // namespace vellumo
