#pragma once

#include "platform/result.h"

#include <QMessageBox>
#include <QString>

#include <functional>

class QWidget;

namespace vellumo {

// Every box that tells or asks the user something. All of them are modal over their parent and show
// their text as it stands, never as markup.

inline constexpr QLatin1StringView productName{"Vellumo Designer"};

struct Box {
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title = productName;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::Ok;
    /// What closing the box without a button means.
    QMessageBox::StandardButton closeButton = QMessageBox::Ok;
    QString informative = {}; ///< stands below the text, smaller; empty = nothing does
};

/// Shows the box and waits; gives the button that was pressed.
QMessageBox::StandardButton ShowBox(QWidget *parent, const Box &box);

// Boxes with the product's title and an OK button.
void ShowExclamation(QWidget *parent, const QString &message);
void ShowInformation(QWidget *parent, const QString &message);
void ShowCritical(QWidget *parent, const QString &message);

/// The same with why it is so below the message: a text, or file and reason of an error.
void ShowCritical(QWidget *parent, const QString &message, const QString &informative);
void ShowCritical(QWidget *parent, const QString &message, const Error &error);

/// "Yes" or "No"; the default is what closing the box means.
QString AskYesNo(QWidget *parent, const QString &message, const QString &informative = {},
                 QMessageBox::StandardButton defaultButton = QMessageBox::No);

/// "Yes", "No" or "Cancel"; Cancel is the default, and what closing the box means.
QString AskYesNoCancel(QWidget *parent, const QString &message);

/// A line of text that the user types, as typed; empty when the box was cancelled. F1 calls the
/// function, if there is one, while the box is up.
QString AskText(QWidget *parent, const QString &title, const QString &prompt,
                const std::function<void()> &showHelp = {});

} // namespace vellumo
