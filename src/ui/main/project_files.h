#pragma once

#include "ui/common/environment.h"
#include "ui/common/project_document.h"

#include <QWidget>

namespace vellumo {

/// The open project and its file: saving it, asking for another, and the question that comes before
/// unsaved work is lost.
class ProjectFiles : public QObject
{
    Q_OBJECT

public:
    /// All three must outlive this; the window is the parent of the boxes.
    ProjectFiles(ProjectDocument &document, const Environment &environment, QWidget *window);

    /// Saves to the project's file, or to one that the user chooses where it has none.
    void Save();
    /// Saves to a file that the user chooses.
    void SaveAs();
    /// Save from the toolbar: a save that did not happen is forgotten.
    void SaveAndForget();

    /// What the open project would make way for.
    enum class Reason { New, Open, Exit, CloseBox };

    /// Offers to save unsaved work; whether the user lets the project go.
    bool MayDiscard(Reason reason);

    /// Whether the user, asked last, wanted to save and that did not happen.
    bool SaveMissed() const { return m_saveMissed; }

    /// The project file that the user chooses to open; empty when the dialog was cancelled.
    QString ChooseProject();

private:
    bool MayReplace(const QString &path);
    void SaveTo(const QString &path);
    QString ChooseTarget(const QString &folder, const QString &fileName);

    ProjectDocument &m_document;
    const Environment &m_environment;
    QWidget *m_window;
    bool m_saveCancelled = false; ///< the last save did not happen
    bool m_saveMissed = false;
};

} // namespace vellumo
