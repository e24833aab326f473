#include "readback/delivered_types.h"

#include "readback/form.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

bool HasObject(const DeliveredType &type, ObjectKind kind, quint32 number = 0)
{
    return std::ranges::any_of(type.objects, [&](const FormObject &object) {
        return object.kind == kind && (number == 0 || object.number == number);
    });
}

} // namespace

TEST(DeliveredTypes, HaveNamesAndTypeCodesOfTheirOwn)
{
    std::set<QString> names;
    std::set<int> codes;
    for (const DeliveredType &type : deliveredTypes) {
        names.insert(type.name);
        codes.insert(type.typeCode);
    }
    EXPECT_EQ(names.size(), 10u);
    EXPECT_FALSE(names.contains(u""_s));
    EXPECT_EQ(codes.size(), 10u);
    EXPECT_EQ(*codes.rbegin(), 9) << "they count from 0";
}

TEST(DeliveredTypes, AgreeWithTheirObjects)
{
    for (const DeliveredType &type : deliveredTypes) {
        SCOPED_TRACE(QString(type.name).toStdString());
        EXPECT_EQ(type.ownsItems, HasObject(type, ObjectKind::List));
        EXPECT_EQ(type.hasSecondControl, HasObject(type, ObjectKind::Control, 3));
        EXPECT_TRUE(std::ranges::any_of(type.objects, [](const FormObject &object) {
            return object.number == 2;
        })) << "the navigation begins there";
    }
}

TEST(DeliveredTypes, AreFoundByNameAndCode)
{
    for (const DeliveredType &type : deliveredTypes) {
        EXPECT_EQ(&TypeOfName(deliveredTypes, QString(type.name)), &type);
        EXPECT_EQ(&TypeOfCode(deliveredTypes, type.typeCode), &type);
    }
    EXPECT_EQ(TypeOfName(deliveredTypes, u"Yes/No").typeCode, 2);
    EXPECT_EQ(TypeOfCode(deliveredTypes, 5).name, "Signature"_L1);
}

TEST(DeliveredTypes, AreNoneForOtherNamesAndCodes)
{
    for (const QString &name : {u""_s, u"text"_s, u"Text "_s, u"Wrong Type"_s}) {
        const DeliveredType &none = TypeOfName(deliveredTypes, name);
        EXPECT_TRUE(none.name.isEmpty());
        EXPECT_EQ(none.typeCode, 0x10) << "which a database has for such a question";
        EXPECT_EQ(none.valueCode, 0x10);
        EXPECT_FALSE(none.ownsItems || none.hasSecondControl);
        EXPECT_TRUE(none.objects.isEmpty());
    }
    EXPECT_TRUE(TypeOfCode(deliveredTypes, 10).name.isEmpty());
    EXPECT_TRUE(TypeOfCode(deliveredTypes, 0x10).name.isEmpty());
}

TEST(DeliveredTypes, ACodeOfNoneIsNamedByItself)
{
    EXPECT_EQ(NameOfTypeCode(0x04), u"Pulldown List"_s);
    EXPECT_EQ(NameOfTypeCode(0x10), u"0x10"_s);
    EXPECT_EQ(NameOfTypeCode(0x0A), u"0x0a"_s);
}
