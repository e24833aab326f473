#pragma once

#include "model/project_reader.h"

#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

namespace vellumo {

/// A project of one question with one item, as a file has it.
inline const QByteArray smallProject =
    "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n"
    "<root>\n"
    "<Company>Brindlecot Data Collect</Company>\n"
    "<FormName>Survey</FormName>\n"
    "<FormVersion>1.0</FormVersion>\n"
    "<Description>Words</Description>\n"
    "<FormPath>C:\\Data</FormPath>\n"
    "<MaxId>8</MaxId>\n"
    "<rcMain><record><Order>1</Order><Type>Text</Type>"
    "<Title>Age</Title><ColumnName>AGE</ColumnName>"
    "<Question>How old?</Question><Id>7</Id></record></rcMain>\n"
    "<rcChilds><record><Id>7</Id><Item>Red</Item></record></rcChilds>\n"
    "<TitleList><Item>Age</Item></TitleList>\n"
    "</root>\n";

/// The small project with one text in the place of another, which it must have.
inline QByteArray Changed(const QByteArray &from, const QByteArray &to)
{
    EXPECT_TRUE(smallProject.contains(from)) << from.toStdString();
    return QByteArray(smallProject).replace(from, to);
}

/// An empty project where the bytes are refused, which is a failure of the test.
inline Project Read(const QByteArray &bytes)
{
    Result<Project> project = ReadProject(bytes);
    if (project)
        return std::move(*project);
    ADD_FAILURE() << Describe(project.error()).toStdString();
    return {};
}

/// The error as "line: text", or "read".
inline QString RefusalOf(const QByteArray &bytes)
{
    const Result<Project> project = ReadProject(bytes);
    if (project)
        return QStringLiteral("read");
    return QStringLiteral("%1: %2").arg(project.error().line).arg(project.error().text);
}

} // namespace vellumo
