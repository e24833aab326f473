#pragma once

#include "ui/common/field_box.h"
#include "ui/common/heading.h"
#include "ui/common/link_label.h"
#include "ui/common/project_document.h"

#include <QWidget>

#include <initializer_list>
#include <memory>
#include <vector>

class QBoxLayout;

namespace vellumo {

class ButtonLine;
class ScrollPage;

/// One of the four steps of the main window: what the window asks of it, and what it asks of the
/// window.
class StepPage : public QWidget
{
    Q_OBJECT

public:
    /// The document must outlive the step.
    explicit StepPage(ProjectDocument &document, QWidget *parent = nullptr);
    ~StepPage() override;

    /// The step has come to be the one that is shown.
    virtual void Enter() {}

    /// Shows the project's texts in the step's boxes; a box whose text this alters counts as
    /// changed. The document's signal leads here.
    void ShowTexts();

    /// Whether the step has the box of a field.
    bool Has(FormField field) const;

    /// Never: what a step has to say scrolls.
    bool hasHeightForWidth() const override { return false; }

    QSize minimumSizeHint() const override;

    /// In a low window the buttons stand at its foot, which is handed in, and the step is as high
    /// as what it has to say: the window scrolls. Else they stand below what scrolls within the
    /// step.
    void SetLow(bool low, QBoxLayout &foot);

    /// What is to be seen of what scrolls, at least, in pixels: where there is less room the window
    /// is low.
    virtual int LeastView() const;

    /// Puts the focus into the box of a field; a step that does not have it does nothing.
    void Focus(FormField field);

signals:
    void BackAsked();
    void NextAsked();
    /// The number of a page of the help.
    void HelpAsked(quint32 contextId);

protected:
    void resizeEvent(QResizeEvent *event) override;

    /// The step has another size, or its heading another place; for a step that sets the size of
    /// what scrolls in it.
    virtual void FitContent() {}

    /// The heading stands above what scrolls, and scrolls along where there is little room; the
    /// buttons stand below.
    void PlaceParts(Heading *heading, ScrollPage *page, ButtonLine *buttons);

    struct HelpLink {
        LinkLabel *label;
        quint32 contextId;
    };
    void ConnectHelp(std::initializer_list<HelpLink> links);

    /// The box, a QLineEdit or QPlainTextEdit of the step, is where a field is entered.
    template <typename Box> void Bind(FormField field, Box *box)
    {
        m_boxes.push_back(std::make_unique<FieldBox>(m_document, field, box));
    }

    ProjectDocument &document() const { return m_document; }

private:
    void PlaceContent();
    void PlaceHeading();
    void GiveHeight();

    ProjectDocument &m_document;
    std::vector<std::unique_ptr<FieldBox>> m_boxes;
    Heading *m_heading = nullptr;
    ScrollPage *m_page = nullptr;
    ButtonLine *m_buttons = nullptr;
    bool m_isLow = false;
};

} // namespace vellumo
