#include "ui/main/project_files.h"

#include "model/project_file.h"
#include "model/unreadable_texts.h"
#include "ui/common/prompts.h"

#include <QFileDialog>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Empty when the dialog is cancelled.
QString ChosenFile(QFileDialog &dialog)
{
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

} // namespace

ProjectFiles::ProjectFiles(ProjectDocument &document, const Environment &environment,
                           QWidget *window)
    : QObject(window), m_document(document), m_environment(environment), m_window(window)
{}

void ProjectFiles::Save()
{
    const QString path = m_document.path();
    SaveTo(path.isEmpty() ? ChooseTarget(m_environment.projectsFolder, {}) : path);
}

void ProjectFiles::SaveAs()
{
    const QString path = m_document.path();
    if (path.isEmpty())
        return SaveTo(ChooseTarget(m_environment.projectsFolder, {}));
    const QFileInfo file(path);
    // A name without a folder means the application folder, as it does on the command line.
    const bool bareName = file.fileName() == path;
    SaveTo(ChooseTarget(bareName ? m_environment.applicationFolder : file.path(), file.fileName()));
}

void ProjectFiles::SaveAndForget()
{
    Save();
    m_saveCancelled = false;
}

bool ProjectFiles::MayDiscard(Reason reason)
{
    m_saveMissed = false;
    if (!m_document.ProjectChanged())
        return true;
    // By intention the title bar's button remembers a save that failed before, from the menu: then
    // the window stays once more, even if it is saved now.
    if (reason != Reason::CloseBox)
        m_saveCancelled = false;

    const QString answer =
        AskYesNoCancel(m_window, u"Do you want to save changes to your Vellsheet project?"_s);
    if (answer != "Yes"_L1)
        return answer == "No"_L1;
    Save();
    m_saveMissed = std::exchange(m_saveCancelled, false);
    return !m_saveMissed || reason == Reason::Open; // opening goes on without the save, on purpose
}

QString ProjectFiles::ChooseProject()
{
    // The blank at the end belongs to the title, here and where a project is saved.
    QFileDialog dialog(m_window, u"Open File "_s, m_environment.projectsFolder,
                       u"VMP Files (*.vmp)"_s);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return ChosenFile(dialog);
}

/// Whether the user lets a file go that another program put in the place of the project's, or wrote
/// to; the dialog that chooses a file has asked about any other.
bool ProjectFiles::MayReplace(const QString &path)
{
    const bool isOwn = QFileInfo(path) == QFileInfo(m_document.path());
    if (!isOwn || !HoldsSomethingElse(path, m_document.fingerprint()))
        return true;
    return AskYesNo(m_window,
                    u"%1\r\nhas been changed by another program since you opened or saved "
                    "it. Do you want to save your project over it?"_s.arg(path)) == "Yes"_L1;
}

/// An empty path stands for a dialog that was cancelled.
void ProjectFiles::SaveTo(const QString &path)
{
    if (path.isEmpty() || !MayReplace(path)) {
        m_saveCancelled = true;
        return;
    }
    Fingerprint fingerprint;
    const Outcome saved = SaveProject(m_document.project(), path, &fingerprint);
    if (saved) {
        m_document.MarkSaved(path, fingerprint);
        if (const QString notice = UnreadableNotice(m_document.project()); !notice.isEmpty())
            ShowExclamation(m_window, notice);
        return;
    }
    m_saveCancelled = true;
    ShowCritical(m_window, saved.error().text, saved.error());
}

QString ProjectFiles::ChooseTarget(const QString &folder, const QString &fileName)
{
    QFileDialog dialog(m_window, u"Save File As "_s, folder, u"VMP file (*.vmp)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"vmp"_s);
    dialog.selectFile(fileName);
    return ChosenFile(dialog);
}

} // namespace vellumo
