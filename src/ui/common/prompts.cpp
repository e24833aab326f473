#include "ui/common/prompts.h"

#include "ui/common/desktop_manners.h"
#include "ui/common/help_key.h"
#include "ui/common/one_line_box.h"
#include "ui/common/prompt_box.h"

#include <QInputDialog>
#include <QLineEdit>

namespace vellumo {

QMessageBox::StandardButton ShowBox(QWidget *parent, const Box &box)
{
    // Not one of the toolkit's ready boxes, which take a text that looks like markup for markup.
    PromptBox shown(box.icon, box.title, box.text, box.informative, box.buttons, parent);
    shown.setDefaultButton(box.defaultButton);
    shown.setEscapeButton(box.closeButton);
    return static_cast<QMessageBox::StandardButton>(shown.exec());
}

void ShowExclamation(QWidget *parent, const QString &message)
{
    ShowBox(parent, {.text = message, .icon = QMessageBox::Warning});
}

void ShowInformation(QWidget *parent, const QString &message)
{
    ShowBox(parent, {.text = message, .icon = QMessageBox::Information});
}

void ShowCritical(QWidget *parent, const QString &message)
{
    ShowCritical(parent, message, QString());
}

void ShowCritical(QWidget *parent, const QString &message, const QString &informative)
{
    ShowBox(parent, {.text = message, .icon = QMessageBox::Critical, .informative = informative});
}

void ShowCritical(QWidget *parent, const QString &message, const Error &error)
{
    ShowCritical(parent, message, Describe(error));
}

QString AskYesNo(QWidget *parent, const QString &message, const QString &informative,
                 QMessageBox::StandardButton defaultButton)
{
    const auto answer = ShowBox(parent, {.text = message,
                                         .icon = QMessageBox::Question,
                                         .buttons = QMessageBox::Yes | QMessageBox::No,
                                         .defaultButton = defaultButton,
                                         .closeButton = defaultButton,
                                         .informative = informative});
    return answer == QMessageBox::Yes ? QStringLiteral("Yes") : QStringLiteral("No");
}

QString AskYesNoCancel(QWidget *parent, const QString &message)
{
    const auto answer =
        ShowBox(parent, {.text = message,
                         .icon = QMessageBox::Question,
                         .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                         .defaultButton = QMessageBox::Cancel,
                         .closeButton = QMessageBox::Cancel});
    if (answer == QMessageBox::Cancel)
        return QStringLiteral("Cancel");
    return answer == QMessageBox::Yes ? QStringLiteral("Yes") : QStringLiteral("No");
}

QString AskText(QWidget *parent, const QString &title, const QString &prompt,
                const std::function<void()> &showHelp)
{
    QInputDialog input(parent);
    input.setWindowTitle(title);
    input.setLabelText(prompt);
    input.setTextEchoMode(QLineEdit::Normal); // makes the box
    KeepToOneLine(input.findChild<QLineEdit *>());
    FollowDesktop(input);
    if (showHelp)
        ShowHelpByKey(input, showHelp);
    if (input.exec() != QDialog::Accepted)
        return {};
    return input.textValue();
}

} // namespace vellumo
