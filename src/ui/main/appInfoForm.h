#pragma once

#include "ui/common/environment.h"
#include "ui/common/project_document.h"
#include "ui/main/project_files.h"
#include "ui/main/rescue.h"

#include <QMainWindow>

#include <array>
#include <memory>

namespace vellumo {

class StepComplete;
struct ReviewEntry;
class StepData;
class StepInfo;
class StepPage;
class StepQuestions;
namespace Ui {
class appInfoForm;
}

/// The designer's window: the one open project, and the order of the four steps.
class appInfoForm : public QMainWindow
{
    Q_OBJECT

public:
    explicit appInfoForm(Environment environment, QWidget *parent = nullptr);
    ~appInfoForm() override;

    /// Opens a project file in place of the open project and reviews it in silence. A file that is
    /// no project gets a box, with the hint below the reason, and the project is a new one.
    void OpenProject(const QString &path, const QString &hint = {});

    /// Lays the window out and shows step 1; the project counts as unchanged from here on.
    void FinishSetUp();

    /// Offers unsaved work that earlier designers left; what the user wants is opened in place of
    /// the open project and counts as changed. For once, when the window is shown.
    void OfferRescue();

    /// Writes unsaved work where a later designer finds it.
    void WriteRescueCopy() { m_rescue.Write(); }

    const ProjectDocument &document() const { return m_document; }

signals:
    void HelpAsked(quint32 contextId);
    void ContentsAsked();
    void AboutAsked();
    /// The window is being closed by its user, who may yet keep it open: help has to go.
    void HelpCloseAsked();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void AddSteps();
    void ConnectSteps();
    void ConnectMenus();
    void ConnectToolbar();
    void ConnectKeys();

    void New();
    void Open();
    void OpenInPlace(const std::function<QString()> &choose);
    void ShowOpened(bool isUnsaved);
    void Exit();
    void ForgetReview();

    void LeaveForward(int step);
    void SelectStep(int step);
    void ChangeStep(int tabIndex);
    void MarkLeftStep();
    void KeepButtonsInView();

    void Review(bool showResults);
    void GoToChange(std::optional<FormField> field);
    void GoToError(const ReviewEntry &entry);

    Environment m_environment;
    ProjectDocument m_document;
    Rescue m_rescue;
    std::unique_ptr<Ui::appInfoForm> ui;
    ProjectFiles *m_files;
    StepInfo *m_info;
    StepQuestions *m_questions;
    StepData *m_data;
    StepComplete *m_complete;
    std::array<StepPage *, 4> m_steps; ///< in their order
    int m_step = 1;                    ///< the one that is shown, 1 to 4
    bool m_formReady = false;          ///< set-up is complete
};

} // namespace vellumo
