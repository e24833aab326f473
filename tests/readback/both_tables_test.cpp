// The one place in which the types of what makes databases and of what reads them back meet.

#include "model/question_types.h"
#include "readback/delivered_types.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QString Written(quint8 code)
{
    return u"0x%1"_s.arg(code, 2, 16, QChar(u'0'));
}

} // namespace

TEST(BothTables, HaveTheSameTypes)
{
    EXPECT_EQ(questionTypes.size(), deliveredTypes.size());
    for (const DeliveredType &type : deliveredTypes) {
        SCOPED_TRACE(QString(type.name).toStdString());
        EXPECT_NE(TypeNamed(QString(type.name)), nullptr);
        EXPECT_EQ(HasItems(QString(type.name)), type.ownsItems);
        EXPECT_EQ(QString(QuestionKindCode(QString(type.name))), Written(type.typeCode));
        EXPECT_EQ(QString(FieldDataCode(QString(type.name))), Written(type.valueCode));
    }
}

TEST(BothTables, HaveTheSameCodesForNoType)
{
    const DeliveredType &none = TypeOfName(deliveredTypes, u"Txet");
    EXPECT_EQ(QString(QuestionKindCode(u"Txet")), Written(none.typeCode));
    EXPECT_EQ(QString(FieldDataCode(u"Txet")), Written(none.valueCode));
}
