#include "platform/identifier.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Identifier, IsInRegistryFormAndNew)
{
    const QRegularExpression form(u"^\\{[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\}$"_s);
    const QString first = MakeIdentifier();
    EXPECT_TRUE(form.match(first).hasMatch()) << first.toStdString();
    EXPECT_NE(first, MakeIdentifier());
}
