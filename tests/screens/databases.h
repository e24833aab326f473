#pragma once

#include "model/project_reader.h"
#include "readback/databases.h"
#include "readback/expected_objects.h"
#include "readback/projects.h"
#include "screens/database_screens.h"
#include "support/in_process.h"

namespace vellumo {

/// The bytes of the database of a project.
inline QByteArray DatabaseOf(const Project &project)
{
    QString refusal;
    const std::optional<QByteArray> bytes = MakeInProcess(project, &refusal);
    EXPECT_TRUE(bytes) << refusal.toStdString();
    return bytes.value_or(QByteArray());
}

/// The screens of a project of tests/data/projects.
inline DatabaseScreens ScreensOfProject(const QString &name)
{
    const Result<Project> project =
        ReadProject(BytesOf(DataFile(QStringLiteral("projects/%1.vmp").arg(name))));
    EXPECT_TRUE(project);
    return project ? ScreensOf(Read(DatabaseOf(*project))) : DatabaseScreens();
}

/// The form of a question, by the bytes that are made of it.
inline Form FormOf(const QuestionRow &question, const QStringList &items = {})
{
    const QByteArray bytes = DatabaseOf(OneQuestionProject(QStringLiteral("a"), question, items));
    const DatabaseScreens screens = ScreensOf(Read(bytes));
    EXPECT_EQ(screens.screens.size(), 1);
    EXPECT_TRUE(screens.screens.value(0, {.form = Form()}).form);
    return *screens.screens[0].form;
}

} // namespace vellumo
