#pragma once

#include "ui/common/environment.h"
#include "ui/common/project_document.h"
#include "ui/main/rescue_copy.h"

#include <QTimer>

namespace vellumo {

/// Keeps a rescue copy of unsaved work: so long after the first change that the copy lacks, and at
/// once when the desktop session ends. It goes when the project is saved or another is opened, and
/// with this, which is how a designer ends that was not killed. Where no copy can be written, the
/// designer works without one.
class Rescue : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    Rescue(const ProjectDocument &document, const Environment &environment);
    ~Rescue() override;

    /// Writes what is unsaved, if anything is.
    void Write();
    /// What is open now was to be saved and could not be: its copy stays for a later start.
    void Leave();
    /// The user needs no copy of what is open now.
    void Forget();
    /// The open project is what this copy holds.
    void Adopt(RescueCopy copy);

private:
    void NoteChange();
    void NoteQuestions();

    const ProjectDocument &m_document;
    const Environment &m_environment;
    QTimer m_timer;
    std::optional<RescueCopy> m_copy;
    bool m_questionsChanged = false; ///< since the project was opened or saved
};

} // namespace vellumo
