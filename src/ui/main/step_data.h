#pragma once

#include "ui/common/project_document.h"
#include "ui/common/step_page.h"

#include <memory>

namespace vellumo {
namespace Ui {
class StepData;
}

/// Step 3: the folder on the PC that receives the collected data.
class StepData : public StepPage
{
    Q_OBJECT

public:
    /// The document must outlive the step.
    explicit StepData(ProjectDocument &document, QWidget *parent = nullptr);
    ~StepData() override;

    /// Shows the project's folder; a text that this alters counts as changed.
    void ShowTexts();

private:
    void Browse();

    std::unique_ptr<Ui::StepData> ui;
    ProjectDocument &m_document;
};

} // namespace vellumo
