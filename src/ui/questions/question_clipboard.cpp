#include "ui/questions/question_clipboard.h"

#include "editing/copied_questions.h"
#include "editing/pasted_questions.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace vellumo {
namespace {

QList<CopiedQuestion> QuestionsIn(const QMimeData &data)
{
    // What cannot be read as ours may yet be a table, such as that of a later version.
    const auto own = ReadQuestions(data.data(questionsMimeType));
    return own ? *own : ReadQuestionTable(data.text());
}

} // namespace

void CopyQuestion(const clsDataSource &source)
{
    const QList<Question> questions = {CurrentQuestion(source)};
    auto *data = new QMimeData; // the clipboard's
    data->setData(questionsMimeType, WriteQuestions(questions));
    data->setText(WriteQuestionTable(questions));
    QGuiApplication::clipboard()->setMimeData(data);
}

QString PasteFromClipboard(ProjectDocument &document)
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const QList<CopiedQuestion> questions = data ? QuestionsIn(*data) : QList<CopiedQuestion>();
    if (questions.isEmpty())
        return {};
    clsDataSource after = document.source();
    QString refused = PasteQuestions(after, questions);
    if (after.QuestionCount() > document.source().QuestionCount()) {
        document.ChangeQuestions([&](clsDataSource &source) { source = after; });
        document.SetProjectChanged(true);
    }
    return refused;
}

} // namespace vellumo
