#pragma once

#include "ui/common/step_page.h"

#include <QStringList>

#include <memory>

namespace vellumo {
namespace Ui {
class StepComplete;
}

/// Step 4: the review with its list of errors, and the creation.
class StepComplete : public StepPage
{
    Q_OBJECT

public:
    explicit StepComplete(QWidget *parent = nullptr);
    ~StepComplete() override;

    /// Lists the errors of a review, or none.
    void ShowErrors(const QStringList &listTexts);
    void AllowCreation(bool allowed);

signals:
    void ReviewAsked();
    void CreationAsked();
    /// An entry of the error list was chosen; its text as ShowErrors was given it.
    void ErrorChosen(const QString &listText);

private:
    void ChooseError();

    std::unique_ptr<Ui::StepComplete> ui;
};

} // namespace vellumo
