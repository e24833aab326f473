#pragma once

#include "model/question.h"

#include <QDialog>

#include <memory>

namespace vellumo {

class ProjectDocument;

namespace Ui {
class propertyForm;
}

/// Edits the current question of a project, which there must be when it opens. The project changes
/// only when it is accepted.
class propertyForm : public QDialog
{
    Q_OBJECT

public:
    /// The document must outlive the form.
    explicit propertyForm(ProjectDocument &document, QWidget *parent = nullptr);
    ~propertyForm() override;

signals:
    /// F1 asked for help; contextId is the number of a help topic.
    void HelpAsked(quint32 contextId);

private:
    void ShowQuestion();
    void ShowItemsForType();
    Question Edited() const;
    void SaveUnlessRefused();

    std::unique_ptr<Ui::propertyForm> ui;
    ProjectDocument &m_document;
};

} // namespace vellumo
