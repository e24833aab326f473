#include "readback/form.h"

#include "support/print.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

TEST(Form, DescribesObjectsByKindAndNumber)
{
    const struct {
        FormObject object;
        QString description;
    } rows[] = {
        {{.kind = ObjectKind::Field, .number = 2}, u"field 2"_s},
        {{.kind = ObjectKind::List, .number = 3}, u"list 3"_s},
        {{.kind = ObjectKind::Table, .number = 2}, u"table 2"_s},
        {{.kind = ObjectKind::Label, .number = 65535}, u"label 65535"_s},
        {{.kind = ObjectKind::Title}, u"title"_s},
        {{.kind = ObjectKind::PopupList, .number = 2}, u"popup list 2"_s},
        {{.kind = ObjectKind::GraffitiIndicator}, u"Graffiti indicator"_s},
        {{.kind = ObjectKind::Gadget, .number = 2}, u"gadget 2"_s},
        {{.kind = ObjectKind::ScrollBar, .number = 3}, u"scroll bar 3"_s},
        {{.kind = ObjectKind(4), .number = 1}, u"object 1"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(Describe(row.object), row.description);
}

TEST(Form, DescribesControlsByTheirStyle)
{
    const QString descriptions[] = {u"button 9"_s,        u"control 9"_s,          u"check box 9"_s,
                                    u"popup trigger 9"_s, u"selector trigger 9"_s, u"control 9"_s};
    quint32 style = 0;
    for (const QString &description : descriptions)
        EXPECT_EQ(Describe({.kind = ObjectKind::Control, .number = 9, .style = style++}),
                  description);
    EXPECT_EQ(NameOf(ObjectKind::Control), u"control"_s);
}
