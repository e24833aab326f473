#include "ui/questions/question_preview_box.h"

#include "ui/common/pictures.h"
#include "ui_question_preview_box.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int twipsPerPixel = 15;

QFont InPixels(QFont font, int pixels)
{
    font.setPixelSize(pixels);
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
    if (preview->pictureNumber == 0)
        return;
    ui->picPalm->SetPicture(preview->pictureNumber);
    ui->lblTitle->setText(preview->title);
    ui->lblQuestion->setText(preview->question);
    if (preview->itemBox)
        ShowItems(*preview->itemBox);
}

void QuestionPreviewBox::Blank()
{
    ui->lblTitle->clear();
    ui->lblQuestion->clear();
    ui->lblq_num->clear();
    ui->lstCheckBox->hide();
    ui->picPalm->Clear();
}

void QuestionPreviewBox::ShowItems(const QuestionPreview::ItemBox &box)
{
    ui->lstCheckBox->setFixedWidth(box.width / twipsPerPixel);
    ui->lstCheckBox->clear();
    for (const QString &text : box.items) {
        auto *item = new QListWidgetItem(text, ui->lstCheckBox);
        item->setFlags(Qt::ItemIsEnabled); // a look at boxes that are ticked elsewhere
        item->setCheckState(Qt::Unchecked);
    }
    ui->lstCheckBox->show();
}

} // namespace vellumo
