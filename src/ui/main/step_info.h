#pragma once

#include "ui/common/project_document.h"
#include "ui/common/step_page.h"

#include <memory>

namespace vellumo {
namespace Ui {
class StepInfo;
}

/// Step 1: name, version and description of the Vellsheet.
class StepInfo : public StepPage
{
    Q_OBJECT

public:
    /// The document must outlive the step.
    explicit StepInfo(ProjectDocument &document, QWidget *parent = nullptr);
    ~StepInfo() override;

    /// Shows the project's texts; a box whose text this alters counts as changed.
    void ShowTexts();

private:
    void ConnectBoxes();
    void TakeDescription();

    std::unique_ptr<Ui::StepInfo> ui;
    ProjectDocument &m_document;
    QString
        m_shownDescription; ///< as the project has it; the box knows only one kind of line break
};

} // namespace vellumo
