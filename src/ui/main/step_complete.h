#pragma once

#include "ui/common/step_page.h"
#include "validation/project_review.h"

#include <memory>
#include <vector>

namespace vellumo {
namespace Ui {
class StepComplete;
}

/// Step 4: the review with its list of errors, and the creation.
class StepComplete : public StepPage
{
    Q_OBJECT

public:
    /// The document must outlive the step.
    explicit StepComplete(ProjectDocument &document, QWidget *parent = nullptr);
    ~StepComplete() override;

    /// Until a review that is made here, nothing is created; the focus goes to its button.
    void Enter() override;

    /// Lists the errors of a review, or none.
    void ShowErrors(const std::vector<ReviewEntry> &entries);
    void AllowCreation(bool allowed);

signals:
    void ReviewAsked();
    void CreationAsked();
    void ErrorChosen(const ReviewEntry &entry);

private:
    void ChooseError();

    std::unique_ptr<Ui::StepComplete> ui;
    std::vector<ReviewEntry> m_entries; ///< of the list, row by row
};

} // namespace vellumo
