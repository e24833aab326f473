#pragma once

#include "palmgen/build_with_tools.h"
#include "palmgen/create_pass.h"
#include "platform/tool_runner.h"
#include "readback/findings.h"

#include <QCoreApplication>

namespace vellumo {

/// The database of a project as it is made by what this test is linked with, and by the tools.
inline QByteArray Generated(const Project &project)
{
    using namespace Qt::StringLiterals;
    char name[] = "test";
    char *arguments[] = {name, nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments);
    const QTemporaryDir folder;
    const CreatePlace place = {{folder.path(), folder.filePath(QString())},
                               BuildWithTools([](const ToolCall &call) {
                                   return RunAndWait(call, {.folders = {QStringLiteral(PROGRAMS)}});
                               })};
    const CreateReport report = MakeDatabase(project, place, u"0123456789ABCDEF0123456789ABCDEF"_s);
    EXPECT_EQ(report.error.text, QString());
    for (const ToolRun &run : report.runs)
        EXPECT_EQ(run.end, ToolEnd::Succeeded) << run.reason.toStdString();
    return BytesOf(folder.filePath(project.FormName + u".prc"_s));
}

} // namespace vellumo
