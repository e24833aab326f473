#pragma once

#include "model/question.h"

#include <QList>

namespace vellumo {

// What goes through the clipboard as text, and what becomes of a text that somebody else laid
// there.

/// The text as a place of one line takes it: a line break at its end goes, each other one becomes a
/// blank, and so does a tab.
QString OneLine(QStringView text);

/// The lines without the tabs and blanks at their ends; empty ones are left out.
QStringList LinesOf(QStringView text);

/// A question that was copied somewhere.
struct CopiedQuestion {
    qsizetype row = 0; ///< where it stood in what was copied, from 1
    Question question = {};
    QString itemsObjection = {}; ///< why no list can have its items, ready to show; empty = one can
};

/// The questions as spreadsheets take them: a heading and a row for each, cells apart by tabs,
/// items by '|'. A cell with a tab, a line break or a quotation mark stands in quotation marks,
/// those in it doubled.
QString WriteQuestionTable(const QList<Question> &questions);

/// The questions of such a table. Its heading may have other columns and another order, and case
/// does not matter; without a heading the columns are Title, Question, Type, Column Name and Items.
/// Rows without a text are left out.
QList<CopiedQuestion> ReadQuestionTable(QStringView text);

} // namespace vellumo
