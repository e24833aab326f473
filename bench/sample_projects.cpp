#include "bench/sample_projects.h"

#include "model/question_types.h"

using namespace Qt::StringLiterals;
namespace vellumo {
namespace {

/// A text of so many characters, different for each number.
QString Filled(int number, int length, QChar filling)
{
    return QString::number(number).leftJustified(length, filling);
}

Project Named(const QString &name)
{
    Project project;
    project.FormName = name.leftJustified(24, u'n');
    project.FormVersion = u"1."_s.leftJustified(32, u'0');
    project.Description = u"Description "_s.leftJustified(200, u'd');
    project.FormPath = uR"(C:\Data)"_s;
    return project;
}

void AddQuestion(Project &project, const QString &type, int items, QChar filling = u'i')
{
    clsDataSource &source = project.source;
    source.AddQuestion();
    const int order = source.QuestionCount();
    const int id = source.IssueId();
    source.Questions().Current() = {.Order = order,
                                    .Title = Filled(order, 20, u't'),
                                    .Question = Filled(order, 255, u'q'),
                                    .Type = type,
                                    .ColumnName = Filled(order, 255, u'c'),
                                    .Id = id};
    for (int item = 1; item <= items; ++item) {
        source.AddItem();
        source.Items().Current() = {.Id = id, .Item = Filled(item, 32, filling)};
    }
}

} // namespace

Project MixedProject(int questions)
{
    Project project = Named(u"Mixed"_s);
    for (int i = 0; i < questions; ++i) {
        const QuestionType &type = questionTypes[static_cast<size_t>(i) % questionTypes.size()];
        AddQuestion(project, type.name, type.items ? static_cast<int>(type.items->count.most) : 0);
    }
    return project;
}

Project LargestProject()
{
    Project project = Named(u"Largest"_s);
    for (int i = 0; i < 128; ++i)
        AddQuestion(project, u"Pulldown List"_s, 255);
    return project;
}

Project WideProjectOfItems(int items)
{
    Project project = Named(u"Wide"_s);
    for (int i = 0; i < items / 250; ++i)
        AddQuestion(project, u"Pulldown List"_s, 250, u'W');
    return project;
}

Project ProjectOfItems(int items)
{
    Project project = Named(u"Items"_s);
    for (int i = 0; i < items / 250; ++i)
        AddQuestion(project, u"Pulldown List"_s, 250);
    return project;
}

} // namespace vellumo
