#include "ui/support/prompt_script.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace vellumo {
namespace {

QString CaptionOf(const QAbstractButton *button)
{
    return button ? button->text().remove(QChar(u'&')) : QString();
}

SeenBox Look(const QMessageBox &box)
{
    SeenBox seen{box.windowTitle(), box.text(), box.icon(), {}, CaptionOf(box.defaultButton())};
    for (const QAbstractButton *button : box.buttons())
        seen.buttons += CaptionOf(button);
    return seen;
}

void Press(QMessageBox &box, const QString &caption)
{
    for (QAbstractButton *button : box.buttons())
        if (CaptionOf(button) == caption)
            return QTest::mouseClick(button, Qt::LeftButton);
    if (!caption.isEmpty())
        ADD_FAILURE() << "no button " << caption.toStdString()
                      << " below: " << box.text().toStdString();
    box.close();
}

QLineEdit *NameBox(const QFileDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

void Choose(QFileDialog &dialog, const QString &path)
{
    if (path.isEmpty())
        return dialog.reject();
    // The folder is read meanwhile, which may select a proposed file once more.
    for (const auto *view : dialog.findChildren<QAbstractItemView *>())
        if (view->selectionModel())
            view->selectionModel()->clearSelection();
    NameBox(dialog)->setText(path);
    QMetaObject::invokeMethod(&dialog, "accept");
    if (dialog.isVisible()) {
        ADD_FAILURE() << "cannot be chosen: " << path.toStdString();
        dialog.reject();
    }
}

} // namespace

PromptScript::PromptScript(QStringList answers) : m_answers(std::move(answers))
{
    qApp->installEventFilter(this);
}

PromptScript::~PromptScript()
{
    qApp->removeEventFilter(this);
}

bool PromptScript::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPrompt = qobject_cast<QMessageBox *>(watched) ||
                          qobject_cast<QInputDialog *>(watched) ||
                          qobject_cast<QFileDialog *>(watched);
    if (isPrompt && event->type() == QEvent::Show && !event->spontaneous())
        QTimer::singleShot(0, this, [this, dialog = QPointer(static_cast<QDialog *>(watched))] {
            if (dialog && dialog->isVisible())
                Answer(dialog);
        });
    return false;
}

void PromptScript::Answer(QDialog *dialog)
{
    const QString answer = NextAnswer();
    if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
        m_boxes.push_back(Look(*box));
        Press(*box, answer);
    } else if (auto *input = qobject_cast<QInputDialog *>(dialog)) {
        m_questions += input->labelText();
        input->setTextValue(answer);
        answer.isEmpty() ? input->reject() : input->accept();
    } else if (auto *files = qobject_cast<QFileDialog *>(dialog)) {
        m_fileDialogs += files->windowTitle();
        m_fileNames += NameBox(*files)->text();
        Choose(*files, answer);
    }
}

QString PromptScript::NextAnswer()
{
    return m_answers.isEmpty() ? QString() : m_answers.takeFirst();
}

} // namespace vellumo
