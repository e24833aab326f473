#pragma once

#include "exchange/codebook.h"

namespace vellumo {

// A codebook as others take it. The columns are Number, Column Name, Type, Value, Title, Question
// and Items; the words are those of a table of questions in the clipboard.

/// A table for a terminal, without line ends: what fits stands below each other, and the items of
/// a question follow on a line of their own. Control characters are in it as they are.
QStringList TerminalTable(const std::vector<CodebookRow> &rows);

/// The texts of a form as a list of GitHub's Markdown, with an empty line behind it.
QString MarkdownForm(const Project &project);
/// A table of GitHub's Markdown, whose texts are only texts; items and lines stand below each
/// other in their cell.
QString MarkdownTable(const std::vector<CodebookRow> &rows);
/// A text as it stands in such a table, and as a heading has it.
QString MarkdownText(const QString &text);

/// The heading of a table by RFC 4180 behind a byte order mark, and a row for each question; a line
/// ends with CR LF. Items stand in one cell, a line each (list_cell.h). Where a project is named,
/// it is in a first column.
QString CsvHeading(bool namesProject);
QString CsvRows(const std::vector<CodebookRow> &rows, const QString &project = {});

} // namespace vellumo
