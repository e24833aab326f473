#pragma once

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

    void Enter() override { Focus(FormField::DataFolder); }

private:
    void Browse();

    std::unique_ptr<Ui::StepData> ui;
};

} // namespace vellumo
