#include "ui/common/prompts.h"

#include "ui/common/one_line_box.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The box's own text format does not hold for this part of it, nor does its width: a short text
/// above would have a path broken into pieces.
void ShowBelow(QMessageBox &box, const QString &informative)
{
    constexpr int widest = 400;
    box.setInformativeText(informative);
    auto *label = box.findChild<QLabel *>(u"qt_msgbox_informativelabel"_s);
    if (!label)
        return;
    label->setTextFormat(Qt::PlainText);
    const QSize whole = label->fontMetrics().size(0, informative);
    label->setMinimumWidth(std::min(whole.width(), widest));
}

} // namespace

QMessageBox::StandardButton ShowBox(QWidget *parent, const Box &box)
{
    // Not one of the toolkit's ready boxes, which take a text that looks like markup for markup.
    QMessageBox shown(box.icon, box.title, box.text, box.buttons, parent);
    shown.setTextFormat(Qt::PlainText);
    ShowBelow(shown, box.informative);
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
    if (showHelp)
        QObject::connect(new QShortcut(Qt::Key_F1, &input), &QShortcut::activated, &input,
                         showHelp);
    if (input.exec() != QDialog::Accepted)
        return {};
    return input.textValue();
}

} // namespace vellumo
