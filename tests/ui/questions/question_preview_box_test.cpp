#include "ui/questions/question_preview_box.h"

#include "support/print.h"
#include "ui/common/picture_box.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

bool ShowsPicture(const QuestionPreviewBox &box)
{
    return box.findChild<PictureBox *>(u"picPalm"_s)->ShowsPicture();
}

TEST(QuestionPreviewBox, ShowsAPictureOfItsOwnForEachType)
{
    QuestionPreviewBox box;
    for (const QuestionType &type : questionTypes) {
        SCOPED_TRACE(type.name.latin1());
        box.Show(QuestionPreview{.position = u"1 of 1"_s, .type = type.id});
        EXPECT_TRUE(ShowsPicture(box));
    }
}

TEST(QuestionPreviewBox, IsBlankWithoutAType)
{
    QuestionPreviewBox box;
    box.Show(QuestionPreview{.position = u"1 of 1"_s, .type = TypeId::Text});
    box.Show(QuestionPreview{.position = u"1 of 1"_s});
    EXPECT_FALSE(ShowsPicture(box));
    box.Show({});
    EXPECT_FALSE(ShowsPicture(box));
}

} // namespace
