#pragma once

#include "support/print.h"

#include <QStringList>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace vellumo {

/// The shapes of drawings in XML, one a line: "LOOK X Y WIDTH HEIGHT" of a rectangle, "LOOK
/// COMMANDS" of a path, "LOOK X Y LENGTH: TEXT" of a text, "svg IDENTIFIER" where a drawing begins.
inline QStringList ShapesOf(const QByteArray &xml)
{
    using namespace Qt::StringLiterals;
    QStringList shapes;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        const auto joined = [&](const QList<QLatin1StringView> &names) {
            QStringList values;
            for (const QLatin1StringView name : names)
                values += attributes.value(name).toString();
            return values.join(u' ');
        };
        if (reader.name() == "rect"_L1)
            shapes += joined({"class"_L1, "x"_L1, "y"_L1, "width"_L1, "height"_L1});
        else if (reader.name() == "path"_L1)
            shapes += joined({"class"_L1, "d"_L1});
        else if (reader.name() == "text"_L1)
            shapes += joined({"class"_L1, "x"_L1, "y"_L1, "textLength"_L1}) + u": "_s +
                      reader.readElementText();
        else if (reader.name() == "svg"_L1)
            shapes += u"svg "_s + attributes.value("aria-labelledby"_L1).toString();
    }
    EXPECT_FALSE(reader.hasError())
        << reader.errorString().toStdString() << ", line " << reader.lineNumber();
    return shapes;
}

} // namespace vellumo
