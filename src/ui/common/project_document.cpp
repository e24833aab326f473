#include "ui/common/project_document.h"

#include <memory>

namespace vellumo {

/// A step on the stack. It was done before it came there.
class ProjectDocument::DoneStep : public QUndoCommand
{
public:
    static constexpr int noTyping = -1; // steps with this number stay apart

    DoneStep(ProjectDocument &document, ProjectStep step, Counts counts, int typing = noTyping)
        : m_document(document), m_step(std::move(step)), m_counts(counts), m_typing(typing)
    {}

    const ProjectStep &content() const { return m_step; }
    Counts counts() const { return m_counts; }

    int id() const override { return m_typing; }
    void undo() override { m_document.Put(m_step, true); }
    void redo() override
    {
        if (std::exchange(m_isDone, true))
            m_document.Put(m_step, false);
    }
    /// Typing that came back to where it began is no step.
    bool mergeWith(const QUndoCommand *next) override
    {
        m_step.Append(static_cast<const DoneStep *>(next)->m_step);
        setObsolete(m_step.IsEmpty());
        return true;
    }

private:
    ProjectDocument &m_document;
    ProjectStep m_step;
    Counts m_counts;
    int m_typing;
    bool m_isDone = false;
};

void ProjectDocument::SetProjectChanged(bool changed)
{
    m_changed = changed;
    if (!changed)
        m_steps.setClean();
}

void ProjectDocument::MarkUnsaved()
{
    m_changed = true;
    m_steps.resetClean();
}

void ProjectDocument::Replace(Project project, const QString &path, const Fingerprint &fingerprint)
{
    {
        const Announcement announcement(*this); // of the questions, until the end of the block
        m_project = std::move(project);
        m_path = path;
        m_fingerprint = fingerprint;
        m_steps.clear();
    }
    emit TextsChanged();
    emit Replaced();
}

void ProjectDocument::MarkSaved(const QString &path, const Fingerprint &fingerprint)
{
    m_path = path;
    m_fingerprint = fingerprint;
    SetProjectChanged(false);
    emit Saved();
}

void ProjectDocument::SetText(FormField field, const QString &text)
{
    const Project before = m_project;
    m_project.*RowOf(field).text = text;
    m_changed = true;
    ProjectStep step(before, m_project);
    if (!step.IsEmpty())
        m_steps.push(new DoneStep(*this, std::move(step), Counts::Yes, m_typing));
    emit TextsChanged();
}

void ProjectDocument::TypingTakenBack()
{
    if (m_steps.isClean())
        m_changed = false;
}

void ProjectDocument::Record(const Project &before, Counts counts)
{
    EndTyping();
    ProjectStep step(before, m_project);
    if (!step.IsEmpty())
        m_steps.push(new DoneStep(*this, std::move(step), counts));
}

/// Where nothing was typed last, the texts stay as they became when steps are taken back.
void ProjectDocument::AmendTyping(const Project &before)
{
    ProjectStep step(before, m_project);
    if (step.IsEmpty())
        return;
    const DoneStep *last = StepAt(m_steps.index() - 1);
    if (last && last->id() != DoneStep::noTyping && !m_steps.canRedo() && !m_steps.isClean())
        m_steps.push(new DoneStep(*this, std::move(step), Counts::Yes, last->id()));
    else
        m_steps.resetClean();
}

const ProjectDocument::DoneStep *ProjectDocument::StepAt(int index) const
{
    return static_cast<const DoneStep *>(m_steps.command(index));
}

void ProjectDocument::Undo()
{
    if (const DoneStep *last = StepAt(m_steps.index() - 1))
        Go(*last, &QUndoStack::undo);
}

void ProjectDocument::Redo()
{
    if (const DoneStep *next = StepAt(m_steps.index()))
        Go(*next, &QUndoStack::redo);
}

void ProjectDocument::Go(const DoneStep &step, void (QUndoStack::*way)())
{
    (m_steps.*way)();
    if (step.counts() == Counts::Yes || m_steps.isClean())
        m_changed = !m_steps.isClean();
    emit WentTo(step.content().ChangedField());
}

void ProjectDocument::Put(const ProjectStep &step, bool back)
{
    EndTyping();
    {
        std::optional<Announcement> announcement;
        if (step.ChangesQuestions())
            announcement.emplace(*this);
        if (back)
            step.TakeBack(m_project);
        else
            step.Repeat(m_project);
    }
    emit TextsChanged();
}

} // namespace vellumo
