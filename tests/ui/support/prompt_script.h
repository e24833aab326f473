#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

class QDialog;

namespace vellumo {

/// What a box showed.
struct SeenBox {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QStringList buttons;      ///< captions without their access keys, in the order of the box
    QString defaultButton;    ///< caption
    QString informative = {}; ///< below the text
};

/// What was shown, and whether the test has looked at it since.
template <typename List> class Shown
{
public:
    void Add(typename List::value_type one)
    {
        m_all.push_back(std::move(one));
        m_isRead = false;
    }
    const List &Read() const
    {
        m_isRead = true;
        return m_all;
    }
    bool IsRead() const { return m_isRead; }

private:
    List m_all;
    mutable bool m_isRead = true;
};

/// Answers the boxes of the system while it lives, as a user would, and keeps what they showed.
///
/// Each message box, input box and file dialog that opens takes the next answer: for a message box
/// the caption of the button to press, for an input box the text to enter, for a file dialog the
/// path to choose. "" cancels an input box or file dialog and closes a message box by its title
/// bar.
///
/// The answers are all that may be asked, and all that must be: the test fails where a box opens
/// for which no answer is left (it is then closed), where an answer was never asked for, and where
/// the test did not look at what was shown.
class PromptScript : public QObject
{
    Q_OBJECT

public:
    explicit PromptScript(QStringList answers = {});
    ~PromptScript() override;

    /// Message boxes, in the order in which they were shown.
    const std::vector<SeenBox> &boxes() const { return m_boxes.Read(); }
    /// Their texts.
    QStringList texts() const;
    /// The prompts of the input boxes.
    const QStringList &questions() const { return m_questions.Read(); }
    /// The titles of the file dialogs.
    const QStringList &fileDialogs() const { return m_fileDialogs.Read(); }
    /// The file names that they proposed.
    const QStringList &fileNames() const { return m_fileNames; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Answer(QDialog *dialog);
    QString Keep(const QDialog &dialog);
    QString NextAnswer(const QString &shown);

    QStringList m_answers;
    Shown<std::vector<SeenBox>> m_boxes;
    Shown<QStringList> m_questions;
    Shown<QStringList> m_fileDialogs;
    QStringList m_fileNames;
};

} // namespace vellumo
