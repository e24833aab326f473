#pragma once

#include "ui/common/step_page.h"
#include "ui/questions/questions_layout.h"

#include <memory>

namespace vellumo {

class QuestionModel;
struct DeliveryNotice;

/// Step 2: the list of questions, what can be done with them, and how the current one will look.
class StepQuestions : public StepPage
{
    Q_OBJECT

public:
    /// The document must outlive the step.
    explicit StepQuestions(ProjectDocument &document, QWidget *parent = nullptr);
    ~StepQuestions() override;

    /// Shows the current question in grid and preview, and puts the focus into the grid.
    void Enter() override;

    /// Of QuestionsLayout.
    void LayOutIfLargeEnough();
    int LeastView() const override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;
    void FitContent() override;

private:
    void ConnectButtons();
    void ConnectGrid();
    void ConnectKeys();

    void Add();
    void Edit();
    void Remove();
    void Move(int distance);
    void Duplicate();
    void Copy();
    void Paste();

    bool RefusesWithoutSelection();
    void SelectCurrentRow();
    void RefreshPreview();
    void ShowNotice(const DeliveryNotice &notice);
    void RefreshAfterClick();
    void FollowGrid(const QModelIndex &current);

    std::unique_ptr<Ui::StepQuestions> ui;
    QuestionsLayout m_layout;
    QuestionModel *m_model;
    /// A click refreshed the preview, and the grid may yet report a change of its row for it.
    bool m_previewPending = false;
};

} // namespace vellumo
