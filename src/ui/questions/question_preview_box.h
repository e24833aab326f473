#pragma once

#include "editing/question_preview.h"

#include <QWidget>

#include <memory>

namespace vellumo {
namespace Ui {
class QuestionPreviewBox;
}

/// A handheld's screen that shows a question, in the proportions of the screen at any size, and the
/// number of the question below it.
class QuestionPreviewBox : public QWidget
{
    Q_OBJECT

public:
    explicit QuestionPreviewBox(QWidget *parent = nullptr);
    ~QuestionPreviewBox() override;

    /// The screen's width and height, in the pixels of the desktop; the handheld's are 160 by 160.
    void SetSide(int pixels);

    /// Shows the preview, or a blank screen where there is none.
    void Show(const std::optional<QuestionPreview> &preview);

private:
    void Blank();
    void ShowItems(const QuestionPreview::Items &items);
    void LayOut();
    /// Pixels of the desktop for those of the handheld's screen.
    int Scaled(int pixels) const;

    std::unique_ptr<Ui::QuestionPreviewBox> ui;
    bool m_hasMoreItems = false; ///< than the list shows
};

} // namespace vellumo
