#pragma once

#include "editing/wizard_rules.h"
#include "model/project.h"
#include "model/question.h"

#include "support/print.h"

#include <gtest/gtest.h>

namespace vellumo {

/// A project of these questions, as the wizard makes them.
inline Project ProjectOf(const QList<Question> &questions)
{
    Project project;
    for (const Question &question : questions)
        AppendQuestion(project.source, question);
    return project;
}

/// Text questions of these column names, with titles and texts of their own.
inline Project ProjectWith(const QStringList &columnNames)
{
    QList<Question> questions;
    for (const QString &name : columnNames)
        questions += {.title = QStringLiteral("Title ") + name,
                      .question = QStringLiteral("Question ") + name,
                      .type = QStringLiteral("Text"),
                      .columnName = name};
    return ProjectOf(questions);
}

/// A question Birds with these items.
inline Project ProjectWithItems(const QStringList &items)
{
    return ProjectOf({{.title = QStringLiteral("Birds"),
                       .question = QStringLiteral("Which birds?"),
                       .type = QStringLiteral("Checkboxes"),
                       .columnName = QStringLiteral("BIRDS"),
                       .items = items}});
}

} // namespace vellumo
