#pragma once

#include "model/project.h"

#include <QStringList>

namespace vellumo {

/// Appends a question under an Id that no other has, with its items.
inline void AddQuestion(Project &project, const QuestionRow &question,
                        const QStringList &items = {})
{
    QuestionRow row = question;
    row.Id = project.source.IssueId();
    row.Order = project.source.QuestionCount() + 1;
    project.source.Questions().Append(row);
    for (const QString &item : items)
        project.source.Items().Append({row.Id, item});
}

/// A project with what most of the golden databases have.
inline Project GoldenProject(const QString &name)
{
    using namespace Qt::StringLiterals;
    return {.FormName = name,
            .FormVersion = u"1.0"_s,
            .Description = u"One question"_s,
            .FormPath = u"C:\\Data"_s};
}

/// The project of the golden database of that name which has one question.
inline Project OneQuestionProject(const QString &name, const QuestionRow &question,
                                  const QStringList &items = {})
{
    Project project = GoldenProject(name);
    AddQuestion(project, question, items);
    return project;
}

inline Project TextProject()
{
    using namespace Qt::StringLiterals;
    return OneQuestionProject(u"text"_s, {.Title = u"Finder"_s,
                                          .Question = u"Who found it?"_s,
                                          .Type = u"Text"_s,
                                          .ColumnName = u"FINDER"_s});
}

/// A question with its items, and the name of the golden database that has it alone.
struct QuestionOfOneProject {
    QString name;
    QuestionRow question;
    QStringList items = {};
};

/// The projects of the golden databases that have one question each, one for every type.
inline QList<Project> SmallProjects()
{
    using namespace Qt::StringLiterals;
    const QuestionOfOneProject rows[] = {
        {u"numeric"_s, {0, u"Count"_s, u"How many were seen?"_s, u"Numeric"_s, u"COUNT"_s}},
        {u"currency"_s, {0, u"Price"_s, u"What did it cost?"_s, u"Currency"_s, u"PRICE"_s}},
        {u"notes"_s, {0, u"Sketch"_s, u"Draw the place"_s, u"Notes"_s, u"SKETCH"_s}},
        {u"yesno"_s, {0, u"Open?"_s, u"Is the gate open?"_s, u"Yes/No"_s, u"IS_OPEN"_s}},
        {u"datetime"_s, {0, u"When"_s, u"When was it seen?"_s, u"Date/Time"_s, u"SEEN_AT"_s}},
        {u"signature"_s, {0, u"Sign"_s, u"Please sign here"_s, u"Signature"_s, u"SIGNED"_s}},
        {u"barcode"_s, {0, u"Tag"_s, u"Scan the tag"_s, u"Scanned Barcode"_s, u"TAG"_s}},
        {u"pulldown"_s,
         {0, u"Colour"_s, u"Which colour?"_s, u"Pulldown List"_s, u"COLOUR"_s},
         {u"Red"_s, u"Green"_s, u"Blue"_s}},
        {u"checkboxes"_s,
         {0, u"Damage"_s, u"Mark all damage"_s, u"Checkboxes"_s, u"DAMAGE"_s},
         {u"Roof"_s, u"Wall"_s, u"Window"_s, u"Door"_s}},
    };
    QList<Project> projects = {TextProject()};
    for (const QuestionOfOneProject &row : rows)
        projects += OneQuestionProject(row.name, row.question, row.items);
    return projects;
}

/// The project of tentypes, which has a question of each type.
inline Project TenTypesProject()
{
    using namespace Qt::StringLiterals;
    const struct {
        QuestionRow question;
        QStringList items = {};
    } rows[] = {
        {{0, u"Birds"_s, u"Which birds were heard?"_s, u"Checkboxes"_s, u"BIRDS"_s},
         {u"Wren"_s, u"Robin"_s, u"Blackbird"_s}},
        {{0, u"Wind"_s, u"How strong is the wind?"_s, u"Pulldown List"_s, u"WIND"_s},
         {u"Calm"_s, u"Breeze"_s, u"Strong wind"_s, u"Storm"_s}},
        {{0, u"Ring"_s, u"Scan the ring"_s, u"Scanned Barcode"_s, u"RING"_s}},
        {{0, u"Sign"_s, u"Sign for the round"_s, u"Signature"_s, u"SIGN"_s}},
        {{0, u"Start"_s, u"When did the round begin?"_s, u"Date/Time"_s, u"START_AT"_s}},
        {{0, u"Rain"_s, u"Did it rain?"_s, u"Yes/No"_s, u"RAIN"_s}},
        {{0, u"Map"_s, u"Sketch the round"_s, u"Notes"_s, u"MAP"_s}},
        {{0, u"Fare"_s, u"What was the fare?"_s, u"Currency"_s, u"FARE"_s}},
        {{0, u"Nests"_s, u"Number of nests"_s, u"Numeric"_s, u"NESTS"_s}},
        {{0, u"Remarks"_s, u"Anything else?"_s, u"Text"_s, u"REMARKS"_s}},
    };
    Project project = GoldenProject(u"tentypes"_s);
    project.FormVersion = u"2.1"_s;
    project.Description = u"Every kind of question once"_s;
    project.FormPath = u"C:\\Data\\Ten\\"_s;
    for (const auto &row : rows)
        AddQuestion(project, row.question, row.items);
    return project;
}

} // namespace vellumo
