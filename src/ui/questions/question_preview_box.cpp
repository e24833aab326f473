#include "ui/questions/question_preview_box.h"

#include "handheld/screen_geometry.h"
#include "ui/common/pictures.h"
#include "ui_question_preview_box.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

struct TypePicture {
    TypeId type;
    int number; ///< of the picture
};

constexpr std::array<TypePicture, typeCount> typePictures = {{
    {TypeId::Text, 112},
    {TypeId::Numeric, 109},
    {TypeId::PulldownList, 103},
    {TypeId::YesNo, 105},
    {TypeId::Signature, 110},
    {TypeId::Notes, 108},
    {TypeId::DateTime, 107},
    {TypeId::Currency, 106},
    {TypeId::ScannedBarcode, 111},
    {TypeId::Checkboxes, 104},
}};
static_assert(HasRowPerType(typePictures));

// In pixels of the handheld.
constexpr int titleFont = 11, questionFont = 10, itemFont = 11;
constexpr int boxSide = 9; // of a check box

/// Check boxes as the handheld draws them, in the size that goes with the text beside them.
class HandheldStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (widget && (metric == PM_IndicatorWidth || metric == PM_IndicatorHeight))
            return widget->font().pixelSize() * boxSide / itemFont;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element != PE_IndicatorItemViewItemCheck)
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        painter->setPen(QPen(option->palette.text(), std::max(1, option->rect.width() / boxSide)));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
};

void SetPixels(QWidget &widget, int pixels)
{
    QFont font = widget.font();
    font.setPixelSize(pixels);
    // Where the fixed pitch's family is missing, another of its kind stands in.
    if (font.family() == "Courier New"_L1)
        font.setStyleHint(QFont::Monospace);
    widget.setFont(font);
}

} // namespace

QuestionPreviewBox::QuestionPreviewBox(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::QuestionPreviewBox>())
{
    ui->setupUi(this);
    ui->picPalm->setPalette(ScreenPalette());
    ui->picPalm->setLayoutDirection(Qt::LeftToRight); // the handheld's, whatever the desktop's
    ui->lblTitle->setBackgroundRole(QPalette::WindowText);
    ui->lblTitle->setForegroundRole(QPalette::Window);
    auto *style = new HandheldStyle;
    style->setParent(ui->lstCheckBox);
    ui->lstCheckBox->setStyle(style);
    SetSide(screen::width);
    Blank();
}

QuestionPreviewBox::~QuestionPreviewBox() = default;

void QuestionPreviewBox::SetSide(int pixels)
{
    ui->picPalm->setFixedSize(pixels, pixels);
    // The texts are as large as the screen, whatever the text size of the desktop.
    SetPixels(*ui->lblTitle, Scaled(titleFont));
    SetPixels(*ui->lblQuestion, Scaled(questionFont));
    SetPixels(*ui->lstCheckBox, Scaled(itemFont));
    LayOut();
}

void QuestionPreviewBox::Show(const std::optional<QuestionPreview> &preview)
{
    Blank();
    ui->lblTitle->setAutoFillBackground(preview.has_value());
    if (!preview)
        return;
    ui->lblq_num->setText(preview->position);
    if (!preview->type)
        return;
    ui->picPalm->SetPicture(RowOf(typePictures, *preview->type).number);
    ui->lblTitle->setText(preview->title);
    ui->lblQuestion->setText(preview->question);
    if (preview->items)
        ShowItems(*preview->items);
    LayOut();
}

void QuestionPreviewBox::Blank()
{
    ui->lblTitle->clear();
    ui->lblQuestion->clear();
    ui->lblq_num->clear();
    ui->lstCheckBox->hide();
    ui->picPalm->Clear();
}

void QuestionPreviewBox::ShowItems(const QuestionPreview::Items &items)
{
    m_hasMoreItems = items.more;
    ui->lstCheckBox->clear();
    for (const QString &text : items.shown) {
        auto *item = new QListWidgetItem(text, ui->lstCheckBox);
        item->setFlags(Qt::ItemIsEnabled); // a look at boxes that are ticked elsewhere
        item->setCheckState(Qt::Unchecked);
    }
    ui->lstCheckBox->show();
}

void QuestionPreviewBox::LayOut()
{
    // The tab of the title is as wide as its text, up to the button at its right.
    constexpr int margin = screen::titleX, tabHeight = 14, shortestTab = 45;
    ui->lblTitle->setIndent(Scaled(margin));
    const int tab = std::clamp(ui->lblTitle->sizeHint().width() + Scaled(margin),
                               Scaled(shortestTab), Scaled(margin + screen::titleWidth));
    ui->lblTitle->setGeometry(0, 0, tab, Scaled(tabHeight));
    ui->lblQuestion->setGeometry(Scaled(screen::questionX), Scaled(screen::questionY),
                                 Scaled(screen::questionToEnd), Scaled(screen::lineHeight + 1));
    // The list leaves room for a scroll bar where there are more items than it shows.
    ui->lstCheckBox->setGeometry(Scaled(4), Scaled(52), Scaled(m_hasMoreItems ? 143 : 153),
                                 Scaled(88));
    for (int row = 0; row < ui->lstCheckBox->count(); ++row)
        ui->lstCheckBox->item(row)->setSizeHint({0, Scaled(13)});
}

int QuestionPreviewBox::Scaled(int pixels) const
{
    return pixels * ui->picPalm->width() / screen::width;
}

} // namespace vellumo
