#pragma once

#include "ui/common/step_page.h"

#include <memory>

namespace vellumo {

class QuestionModel;
struct DeliveryNotice;
namespace Ui {
class StepQuestions;
}

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

    /// Fits the controls to the step's size where the window has 790 by 576 pixels, or the screen
    /// not as many; in other windows they keep their places.
    void LayOutIfLargeEnough();

    /// The header of the list and two rows, with the bar below.
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
    bool IsLargeEnough() const;
    void LayOut();
    void Fit(QSize size);
    void RefreshPreview();
    void ShowNotice(const DeliveryNotice &notice);
    void RefreshAfterClick();
    void FollowGrid(const QModelIndex &current);

    std::unique_ptr<Ui::StepQuestions> ui;
    QuestionModel *m_model;
    /// A click refreshed the preview, and the grid may yet report a change of its row for it.
    bool m_previewPending = false;
    bool m_laidOut = false; ///< if only when it was first shown
};

} // namespace vellumo
