#pragma once

#include <QStringList>

namespace vellumo {

class clsDataSource;

/// What a user can change of a question.
struct EditedQuestion {
    QString title = {};
    QString question = {};
    QString type = {};
    QString columnName = {};
    QStringList items = {}; ///< stored for the types that own items only
};

/// Takes the blanks from both ends of title and question; a column name keeps its own.
void TrimEdited(EditedQuestion &edited);

/// All that stands against storing this in place of the current question, ready to show in one
/// box; empty when nothing does. The question counts as trimmed already.
QString ObjectionsTo(const EditedQuestion &edited, const clsDataSource &source);

/// Stores this in the current question, which there must be. It keeps its place and identity.
void ReplaceCurrentQuestion(clsDataSource &source, const EditedQuestion &edited);

/// The items of the question with this Id in table order, whatever filter is set.
QStringList ItemsOf(const clsDataSource &source, int questionId);

} // namespace vellumo
