#pragma once

#include "help/reader/help_file.h"

#include <QTextBrowser>

namespace vellumo {

/// Shows pages of a help file, and takes nothing from anywhere else. Links are only reported.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent = nullptr);

    /// The file must live as long as the browser.
    void SetFile(const HelpFile &file) { m_file = &file; }

    /// A page by its name, with or without an anchor.
    void ShowPage(const QString &page);

    QVariant loadResource(int type, const QUrl &url) override;

    /// The address of a page in the browser.
    static QUrl AddressOf(const QString &page);
    /// What an address means in the help file; empty for one that leads out of it.
    static QString NameIn(const QUrl &address);

protected:
    void changeEvent(QEvent *event) override;

private:
    void ColourLinks();

    const HelpFile *m_file = nullptr;
};

} // namespace vellumo
