#pragma once

#include "editing/question_preview.h"

#include <QWidget>

#include <memory>

namespace vellumo {
namespace Ui {
class QuestionPreviewBox;
}

/// A handheld's screen that shows a question, and the number of the question below it.
class QuestionPreviewBox : public QWidget
{
    Q_OBJECT

public:
    explicit QuestionPreviewBox(QWidget *parent = nullptr);
    ~QuestionPreviewBox() override;

    /// Shows the preview, or a blank screen where there is none.
    void Show(const std::optional<QuestionPreview> &preview);

private:
    void Blank();
    void ShowItems(const QuestionPreview::Items &items);

    std::unique_ptr<Ui::QuestionPreviewBox> ui;
};

} // namespace vellumo
