#pragma once

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

    void Enter() override { Focus(FormField::Name); }

private:
    std::unique_ptr<Ui::StepInfo> ui;
};

} // namespace vellumo
