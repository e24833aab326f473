#pragma once

#include "model/form_fields.h"
#include "model/project_file.h"

#include <QObject>

namespace vellumo {

/// The one open project, the file that it belongs to, and whether it holds edits that were not
/// saved. What shows any of it learns of changes here.
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
    void SetProjectChanged(bool changed) { m_changed = changed; }

    /// Of that file's bytes when it was opened or saved here; empty where that is not known.
    const Fingerprint &fingerprint() const { return m_fingerprint; }

    /// Puts another project in place of the open one. Whether it counts as changed is the caller's
    /// to say.
    void Replace(Project project, const QString &path, const Fingerprint &fingerprint = {});

    /// The project is what that file holds.
    void MarkSaved(const QString &path, const Fingerprint &fingerprint);

    /// Takes a text as it is typed; the project counts as changed.
    void SetText(FormField field, const QString &text);

    void SetTitleList(const QStringList &titles) { m_project.TitleList = titles; }

    /// Runs something that may change the form information, such as a review, and gives its result.
    template <typename Change> auto ChangeTexts(Change change)
    {
        auto result = change(m_project);
        emit TextsChanged();
        return result;
    }

    /// Runs a change of the question or item table between the two signals and gives its result.
    /// Changes do not nest; moving the cursor alone is none.
    template <typename Change> auto ChangeQuestions(Change change)
    {
        const Announcement announcement(*this);
        return change(m_project.source);
    }

signals:
    /// The project's file holds the project.
    void Saved();
    void QuestionsAboutToChange();
    void QuestionsChanged();
    /// The form information may be another one.
    void TextsChanged();
    /// Everything is another one. Comes after the signals above.
    void Replaced();

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
    QString m_path;
    Fingerprint m_fingerprint;
    bool m_changed = false;
};

} // namespace vellumo
