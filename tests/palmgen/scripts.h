#pragma once

#include "palmgen/script_generator.h"

#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

namespace vellumo {

inline const QString identifier = QStringLiteral("0123456789ABCDEF0123456789ABCDEF");

inline void AddQuestion(Project &project, const QuestionRow &row)
{
    project.source.AddQuestion();
    project.source.Questions().Current() = row;
}

inline void AddItem(Project &project, int id, const QString &item)
{
    project.source.AddItem();
    project.source.Items().Current() = {id, item};
}

/// The survey of this question alone.
inline Project ProjectOf(const QuestionRow &question)
{
    Project project;
    project.FormName = QStringLiteral("Survey");
    AddQuestion(project, question);
    return project;
}

/// The script, which must be whole.
inline QByteArray Lines(const Project &project, const QString &withIdentifier = identifier)
{
    const Script script = GenerateScript(project, withIdentifier);
    EXPECT_TRUE(script.outcome) << (script.outcome ? ""
                                                   : script.outcome.error().text.toStdString());
    return script.bytes;
}

/// The line that begins with these words, without its CR LF.
inline QByteArray LineOf(const QByteArray &script, const QByteArray &beginning)
{
    const qsizetype start = ("\n" + script).indexOf("\n" + beginning);
    return start < 0 ? QByteArray() : script.sliced(start, script.indexOf("\r\n", start) - start);
}

} // namespace vellumo
