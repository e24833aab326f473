#pragma once

#include "model/project.h"

#include <QObject>

namespace vellumo {

/// The one open project, and whether it holds edits that were not saved. What shows the questions
/// learns of their changes here.
class ProjectDocument : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Project &project() { return m_project; }
    const Project &project() const { return m_project; }
    clsDataSource &source() { return m_project.source; }
    const clsDataSource &source() const { return m_project.source; }

    bool ProjectChanged() const { return m_changed; }
    void SetProjectChanged(bool changed) { m_changed = changed; }

    /// Runs a change of the question or item table between the two signals and gives its result.
    /// Changes do not nest; moving the cursor alone is none.
    template <typename Change> auto ChangeQuestions(Change change)
    {
        const Announcement announcement(*this);
        return change();
    }

signals:
    void QuestionsAboutToChange();
    void QuestionsChanged();

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

    Project m_project;
    bool m_changed = false;
};

} // namespace vellumo
