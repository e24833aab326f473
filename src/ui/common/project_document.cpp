#include "ui/common/project_document.h"

namespace vellumo {

void ProjectDocument::Replace(Project project, const QString &path, const Fingerprint &fingerprint)
{
    {
        const Announcement announcement(*this); // of the questions, until the end of the block
        m_project = std::move(project);
        m_path = path;
        m_fingerprint = fingerprint;
    }
    emit TextsChanged();
    emit Replaced();
}

void ProjectDocument::MarkSaved(const QString &path, const Fingerprint &fingerprint)
{
    m_path = path;
    m_fingerprint = fingerprint;
    m_changed = false;
    emit Saved();
}

void ProjectDocument::SetText(FormField field, const QString &text)
{
    m_project.*RowOf(field).text = text;
    m_changed = true;
    emit TextsChanged();
}

} // namespace vellumo
