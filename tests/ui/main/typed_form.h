#pragma once

#include "model/project_file.h"
#include "model/question_types.h"
#include "ui/support/typist.h"

#include <QMessageBox>

namespace vellumo {

// How somebody types a form who has no mouse.

inline bool BoxAsks()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

inline bool ItemsAreAsked()
{
    return QApplication::activeModalWidget()->windowTitle().endsWith(QStringLiteral("Step 5"));
}

/// From the wizard's first step to the question whether another one is to be made.
inline void TypeQuestion(Typist &typist, const Project &project, const QuestionRow &question)
{
    typist.Key(Qt::Key_End);
    typist.Key(Qt::Key_Home);
    for (size_t type = 0; question.Type != questionTypes[type].name; ++type)
        typist.Key(Qt::Key_Down);
    typist.Key(Qt::Key_Return);
    typist.Text(question.Title);
    typist.Key(Qt::Key_Return);
    typist.Text(question.ColumnName); // in place of the proposed name, which is selected
    typist.Key(Qt::Key_Return);
    typist.Text(question.Question);
    if (HasItems(question.Type)) {
        typist.Key(Qt::Key_N, Qt::AltModifier);
        typist.Await("step 5", ItemsAreAsked);
        for (const QString &item : project.source.ItemsOf(question.Id)) {
            typist.Key(Qt::Key_Insert);
            typist.Text(item);
            typist.Key(Qt::Key_Return);
        }
    }
    typist.Key(Qt::Key_F, Qt::AltModifier);
    typist.Await("another one?", BoxAsks);
}

/// Every question in the wizard, which is opened first.
inline void TypeQuestions(Typist &typist, const Project &project)
{
    typist.Key(Qt::Key_Insert);
    const auto &questions = project.source.Questions().Rows();
    for (const QuestionRow &question : questions) {
        TypeQuestion(typist, project, question);
        const bool last = question.Id == questions.back().Id;
        typist.Key(last ? Qt::Key_N : Qt::Key_Y, Qt::AltModifier);
        typist.Await("the answer", [] { return !BoxAsks(); });
    }
}

inline void TypeFormInformation(Typist &typist, const Project &project)
{
    typist.Text(project.FormName);
    typist.TabTo("txtAppVersion");
    typist.Text(project.FormVersion);
    typist.TabTo("txtAppDesc");
    typist.Text(project.Description);
    typist.TabTo("cmd1_Next");
    typist.Key(Qt::Key_Space);
}

} // namespace vellumo
