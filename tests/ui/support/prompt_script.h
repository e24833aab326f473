#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

class QDialog;

namespace vellumo {

/// What a box showed.
struct SeenBox {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QStringList buttons;   ///< captions without their access keys, in the order of the box
    QString defaultButton; ///< caption
};

/// Answers the boxes of the system while it lives, as a user would, and keeps what they showed.
///
/// Each message box, input box and file dialog that opens takes the next answer: for a message box
/// the caption of the button to press, for an input box the text to enter, for a file dialog the
/// path to choose. "" cancels an input box or file dialog and closes a message box by its title
/// bar; so does every dialog for which no answer is left.
class PromptScript : public QObject
{
    Q_OBJECT

public:
    explicit PromptScript(QStringList answers = {});
    ~PromptScript() override;

    /// Message boxes, in the order in which they were shown.
    const std::vector<SeenBox> &boxes() const { return m_boxes; }
    /// The prompts of the input boxes.
    const QStringList &questions() const { return m_questions; }
    /// The titles of the file dialogs.
    const QStringList &fileDialogs() const { return m_fileDialogs; }
    /// The file names that they proposed.
    const QStringList &fileNames() const { return m_fileNames; }
    /// Answers that nobody asked for yet.
    const QStringList &answersLeft() const { return m_answers; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Answer(QDialog *dialog);
    QString NextAnswer();

    QStringList m_answers;
    std::vector<SeenBox> m_boxes;
    QStringList m_questions;
    QStringList m_fileDialogs;
    QStringList m_fileNames;
};

} // namespace vellumo
