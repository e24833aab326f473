#pragma once

#include "ui/main/start.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace vellumo {
namespace Ui {
class fileOpenForm;
}

/// Asks at start-up whether to create a new project or to open an existing one.
///
/// A click on the second option, or the space bar, opens the file dialog each time, so the file can
/// be chosen again; a cancelled dialog leaves option and file as they were. The arrow keys only
/// move the selection, and OK then opens the dialog if none was seen since and no file is chosen;
/// cancelled there, it leads back to this window.
///
/// Escape and the title bar's button close the window with what is selected, like OK, but neither
/// open the dialog nor touch the settings.
class fileOpenForm : public QDialog
{
    Q_OBJECT

public:
    /// The function is called by OK when the window is not wanted next time.
    fileOpenForm(QString projectsFolder, std::function<void()> hideOpenFormNextTime,
                 QWidget *parent = nullptr);
    ~fileOpenForm() override;

    /// The option now selected, and the file chosen last, even if it was before the first option
    /// was selected again; the path is empty as long as none was.
    Start Chosen() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// F1 asked for help.
    void HelpAsked();

private:
    void ChooseFile();
    void ShowFileName();
    void Finish();

    std::unique_ptr<Ui::fileOpenForm> ui;
    QString m_projectsFolder;
    std::function<void()> m_hideOpenFormNextTime;
    QString m_path;
    bool m_dialogSeen = false; ///< since the second option was selected
};

} // namespace vellumo
