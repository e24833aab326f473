#include "ui/support/prompt_script.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
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
    SeenBox seen{box.windowTitle(),    box.text(), box.icon(), {}, CaptionOf(box.defaultButton()),
                 box.informativeText()};
    for (const QAbstractButton *button : box.buttons())
        seen.buttons += CaptionOf(button);
    return seen;
}

/// The toolkit's file dialog has boxes of its own.
void ExpectNoMarkup(const QMessageBox &box)
{
    if (qobject_cast<QFileDialog *>(box.parent()))
        return;
    for (const QLabel *label : box.findChildren<QLabel *>())
        EXPECT_TRUE(label->text().isEmpty() || label->textFormat() == Qt::PlainText)
            << "may be taken for markup: " << label->text().toStdString();
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

QLineEdit *NameBox(const QDialog &dialog)
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
    for (const QString &answer : m_answers)
        ADD_FAILURE() << "nobody asked for the answer '" << answer.toStdString() << "'";
    EXPECT_TRUE(m_boxes.IsRead()) << "nobody looked at: "
                                  << m_boxes.Read().back().text.toStdString();
    EXPECT_TRUE(m_questions.IsRead())
        << "nobody looked at: " << m_questions.Read().back().toStdString();
    EXPECT_TRUE(m_fileDialogs.IsRead())
        << "nobody looked at: " << m_fileDialogs.Read().back().toStdString();
}

QStringList PromptScript::texts() const
{
    QStringList texts;
    for (const SeenBox &box : boxes())
        texts += box.text;
    return texts;
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
    const QString answer = NextAnswer(Keep(*dialog));
    if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
        Press(*box, answer);
    } else if (auto *input = qobject_cast<QInputDialog *>(dialog)) {
        input->setTextValue(answer);
        answer.isEmpty() ? input->reject() : input->accept();
    } else if (auto *files = qobject_cast<QFileDialog *>(dialog)) {
        Choose(*files, answer);
    }
}

/// Gives what a failure may call the dialog by.
QString PromptScript::Keep(const QDialog &dialog)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(&dialog)) {
        ExpectNoMarkup(*box);
        m_boxes.Add(Look(*box));
        return box->text();
    }
    if (const auto *input = qobject_cast<const QInputDialog *>(&dialog)) {
        m_questions.Add(input->labelText());
        return input->labelText();
    }
    m_fileDialogs.Add(dialog.windowTitle());
    m_fileNames += NameBox(dialog)->text();
    return dialog.windowTitle();
}

QString PromptScript::NextAnswer(const QString &shown)
{
    if (m_answers.isEmpty()) {
        ADD_FAILURE() << "nobody expected: " << shown.toStdString();
        return {};
    }
    return m_answers.takeFirst();
}

} // namespace vellumo
