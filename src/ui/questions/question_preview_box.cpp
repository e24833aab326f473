#include "ui/questions/question_preview_box.h"

#include "ui/common/pictures.h"
#include "ui_question_preview_box.h"

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

QFont InPixels(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    // Where the fixed pitch's family is missing, another of its kind stands in.
    font.setStyleHint(font.family() == "Courier New"_L1 ? QFont::Monospace : font.styleHint());
    return font;
}

} // namespace

QuestionPreviewBox::QuestionPreviewBox(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::QuestionPreviewBox>())
{
    ui->setupUi(this);
    // The screen has the same size in pixels at any text size, so its texts do too.
    ui->picPalm->setPalette(ScreenPalette());
    ui->lblTitle->setBackgroundRole(QPalette::WindowText);
    ui->lblTitle->setForegroundRole(QPalette::Window);
    ui->lblTitle->setFont(InPixels(ui->lblTitle->font(), 11));
    ui->lblQuestion->setFont(InPixels(ui->lblQuestion->font(), 11));
    ui->lstCheckBox->setFont(InPixels(ui->lstCheckBox->font(), 11));
    Blank();
}

QuestionPreviewBox::~QuestionPreviewBox() = default;

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
}

void QuestionPreviewBox::Blank()
{
    ui->lblTitle->clear();
    ui->lblQuestion->clear();
    ui->lblq_num->clear();
    ui->lstCheckBox->hide();
    ui->picPalm->Clear();
}

/// The list leaves room for a scroll bar where there are more items than it shows.
void QuestionPreviewBox::ShowItems(const QuestionPreview::Items &items)
{
    ui->lstCheckBox->setFixedWidth(items.more ? 143 : 153);
    ui->lstCheckBox->clear();
    for (const QString &text : items.shown) {
        auto *item = new QListWidgetItem(text, ui->lstCheckBox);
        item->setFlags(Qt::ItemIsEnabled); // a look at boxes that are ticked elsewhere
        item->setCheckState(Qt::Unchecked);
    }
    ui->lstCheckBox->show();
}

} // namespace vellumo
