#pragma once

#include <QMessageBox>

namespace vellumo {

class ScrollPage;

/// A message box that fits its screen with its frame: as wide as its text is read best, wider where
/// it is too high for the screen, and at last the text scrolls, by the keys that turn pages, too.
/// The buttons always stand below it in view. Words are never broken, nor is the text markup. F1
/// shows the help of the window below.
class PromptBox : public QMessageBox
{
public:
    /// What stands below the text may be empty, which is nothing. All is handed in at once: the
    /// toolkit places it anew whenever some of it is set.
    PromptBox(Icon icon, const QString &title, const QString &text, const QString &below,
              StandardButtons buttons, QWidget *parent);

    void setVisible(bool visible) override;

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void PutTextIntoPage();
    void Fit();
    void SettleText();
    void FitButtons(QSize room);
    void FitIcon(int room);
    QSize Around();
    QSize TextSize(QSize room) const;

    ScrollPage *m_page;
};

} // namespace vellumo
