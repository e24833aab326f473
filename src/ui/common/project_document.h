#pragma once

#include "editing/project_step.h"
#include "model/project_file.h"

#include <QUndoStack>

#include <utility>

namespace vellumo {

/// The one open project, the file that it belongs to, whether it holds edits that were not saved,
/// and the steps by which it came to be what it is. What shows any of it learns of changes here.
class ProjectDocument : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const Project &project() const { return m_project; }
    /// To move the cursor. What changes a row goes through ChangeQuestions.
    clsDataSource &source() { return m_project.source; }
    const clsDataSource &source() const { return m_project.source; }

    /// Of the project's file; empty while there is none.
    const QString &path() const { return m_path; }

    bool ProjectChanged() const { return m_changed; }
    void SetProjectChanged(bool changed);
    /// The project is no file's, whatever is taken back.
    void MarkUnsaved();

    /// Of that file's bytes when it was opened or saved here; empty where that is not known.
    const Fingerprint &fingerprint() const { return m_fingerprint; }

    /// Puts another project in place of the open one. Whether it counts as changed is the caller's
    /// to say.
    void Replace(Project project, const QString &path, const Fingerprint &fingerprint = {});

    /// The project is what that file holds.
    void MarkSaved(const QString &path, const Fingerprint &fingerprint);

    /// Takes a text as it is typed; the project counts as changed. What is typed without a break is
    /// one step.
    void SetText(FormField field, const QString &text);
    /// A box has taken back all that was typed into it: where nothing else was done since the
    /// saving or opening, the project counts as unchanged again.
    void TypingTakenBack();
    /// What is typed from now on is another step.
    void EndTyping() { ++m_typing; }

    /// Runs something that may change the form information, such as a review, and gives its result.
    /// Only a change that somebody asked for is a step: this goes with the typing before it.
    template <typename Change> auto ChangeTexts(Change change)
    {
        const Project before = m_project;
        auto result = change(m_project);
        AmendTyping(before);
        emit TextsChanged();
        return result;
    }

    /// Whether a step that is taken back or repeated makes the project count as changed.
    enum class Counts { Yes, No };

    /// Runs a change of the questions, their items and the remembered titles between the two
    /// signals, as one step, and gives its result. Changes do not nest; moving the cursor alone is
    /// none.
    template <typename Change> auto ChangeProject(Change change, Counts counts = Counts::Yes)
    {
        const Recording recording(*this, counts);
        const Announcement announcement(*this);
        return change(m_project);
    }
    template <typename Change> auto ChangeQuestions(Change change, Counts counts = Counts::Yes)
    {
        return ChangeProject([&](Project &project) { return change(project.source); }, counts);
    }

    /// Takes the last step back, or repeats the one that was taken back last; nothing where there
    /// is none. The project of the last saving, or of the opening, counts as unchanged again.
    void Undo();
    void Redo();

signals:
    /// The project's file holds the project.
    void Saved();
    void QuestionsAboutToChange();
    void QuestionsChanged();
    /// The form information may be another one.
    void TextsChanged();
    /// Everything is another one. Comes after the signals above.
    void Replaced();
    /// A step that was taken back or repeated has changed this field, or else the questions.
    void WentTo(std::optional<FormField> field);

private:
    struct Announcement {
        explicit Announcement(ProjectDocument &changing) : document(changing)
        {
            emit document.QuestionsAboutToChange();
        }
        ~Announcement() { emit document.QuestionsChanged(); }
        Q_DISABLE_COPY_MOVE(Announcement)
        ProjectDocument &document;
    };

    /// Makes a step of what happens while it lives.
    struct Recording {
        Recording(ProjectDocument &changing, Counts counted)
            : document(changing), before(changing.m_project), counts(counted)
        {}
        ~Recording() { document.Record(before, counts); }
        Q_DISABLE_COPY_MOVE(Recording)
        ProjectDocument &document;
        const Project before;
        const Counts counts;
    };

    class DoneStep;
    void Record(const Project &before, Counts counts);
    void AmendTyping(const Project &before);
    /// Null where there is none.
    const DoneStep *StepAt(int index) const;
    void Go(const DoneStep &step, void (QUndoStack::*way)());
    void Put(const ProjectStep &step, bool back);

    Project m_project;
    QUndoStack m_steps;
    int m_typing = 0; ///< which typing it is
    QString m_path;
    Fingerprint m_fingerprint;
    bool m_changed = false;
};

} // namespace vellumo
