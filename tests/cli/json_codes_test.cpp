#include "cli/commands.h"
#include "cli/project_texts.h"
#include "support/print.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

QString Sources()
{
    QString text;
    for (const QString &room :
         {u"cli"_s, u"exchange"_s, u"handheld"_s, u"readback"_s, u"validation"_s}) {
        QDirIterator files(QStringLiteral(PROJECT "/src/") + room, {u"*.cpp"_s, u"*.h"_s});
        while (files.hasNext())
            text += QString::fromUtf8(BytesOf(files.next()));
    }
    return text;
}

/// The codes of a section of the description: what stands in backticks in the first column of its
/// tables, or in a list of its own.
QSet<QString> Described(const QString &heading)
{
    const QString all = TextOf(u"docs/json.md"_s);
    const qsizetype start = all.indexOf("\n## "_L1 + heading + u'\n');
    EXPECT_GE(start, 0) << heading.toStdString();
    QString codes;
    for (const QString &line :
         all.mid(start, all.indexOf("\n## "_L1, start + 1) - start).split(u'\n'))
        if (line.startsWith("| `"_L1))
            codes += line.section(u'|', 1, 1);
        else if (line.startsWith(u'`'))
            codes += line.section(u". "_s, 0, 0).section(u": "_s, 0, 0);
    return Matches(codes, u"`([a-z-]+)`"_s);
}

QSet<QString> InSchema(const QString &definition)
{
    const QJsonObject schema =
        QJsonDocument::fromJson(TextOf(u"docs/vellumo-output.schema.json"_s).toUtf8()).object();
    QSet<QString> codes;
    for (const auto &code :
         schema[u"$defs"_s][definition][u"properties"_s][u"code"_s][u"enum"_s].toArray())
        codes += code.toString();
    EXPECT_FALSE(codes.isEmpty()) << definition.toStdString();
    return codes;
}

TEST(JsonCodes, AreTheSameInDescriptionAndSchema)
{
    EXPECT_EQ(Described(u"Results"_s), InSchema(u"result"_s) | InSchema(u"info"_s));
    EXPECT_EQ(Described(u"Findings"_s) | Described(u"Warnings"_s),
              InSchema(u"finding"_s) | InSchema(u"difference"_s));
    EXPECT_EQ(Described(u"Columns"_s), InSchema(u"column"_s));
    EXPECT_EQ(Described(u"Warnings"_s), InSchema(u"warning"_s));
    EXPECT_EQ(Described(u"Remarks"_s), InSchema(u"remark"_s));
    EXPECT_EQ(Described(u"Errors"_s), InSchema(u"error"_s));
}

TEST(JsonCodes, AreThoseOfTheSources)
{
    QSet<QString> described;
    for (const QString &heading :
         {u"Results"_s, u"Findings"_s, u"Columns"_s, u"Warnings"_s, u"Remarks"_s, u"Errors"_s})
        described |= Described(heading);
    const QString sources = Sources();
    const QSet<QString> literals =
        Matches(sources, u"(?:\"|QLatin1StringView\\(\")([a-z]+(?:-[a-z]+)*)\"(?:_L1|\\))"_s);
    EXPECT_EQ(described - literals, QSet<QString>());
    // Nothing but a code is written in this way, and the name of a tool.
    EXPECT_EQ(Matches(sources, u"\"([a-z]+(?:-[a-z]+)+)\""_s) - described,
              QSet<QString>{u"build-prc"_s});
}

/// The examples of the description, each an object on a line.
QList<QJsonObject> Examples()
{
    QList<QJsonObject> examples;
    for (const QString &line : TextOf(u"docs/json.md"_s).split(u'\n'))
        if (line.startsWith("    {"_L1)) {
            const auto example = QJsonDocument::fromJson(line.toUtf8());
            EXPECT_TRUE(example.isObject()) << line.toStdString();
            examples += example.object();
        }
    return examples;
}

QJsonObject Definitions()
{
    return QJsonDocument::fromJson(TextOf(u"docs/vellumo-output.schema.json"_s).toUtf8())
        .object()[u"$defs"_s]
        .toObject();
}

/// Whether kind and code are those of a definition.
bool Is(const QJsonObject &object, const QJsonObject &properties)
{
    return properties[u"kind"_s][u"const"_s] == object[u"kind"_s] &&
           properties[u"code"_s][u"enum"_s].toArray().contains(object[u"code"_s]);
}

/// That the members of an object are those that its definition has or requires.
void ExpectMembers(const QJsonObject &object, const QJsonObject &definition)
{
    for (const auto &member : definition[u"required"_s].toArray())
        EXPECT_TRUE(object.contains(member.toString())) << member.toString().toStdString();
    for (const QString &member : object.keys())
        EXPECT_TRUE(definition[u"properties"_s].toObject().contains(member))
            << member.toStdString();
}

TEST(JsonExamples, AreThereForEachObjectAndHaveItsMembers)
{
    const QList<QJsonObject> examples = Examples();
    qsizetype known = 0;
    for (const QJsonObject definitions = Definitions(); const QString &name : definitions.keys()) {
        const QJsonObject definition = definitions[name].toObject();
        const QJsonObject properties = definition[u"properties"_s].toObject();
        if (!properties.contains(u"kind"_s))
            continue; // it is only a part of an object
        SCOPED_TRACE(name.toStdString());
        const qsizetype before = known;
        for (const QJsonObject &example : examples)
            if (Is(example, properties)) {
                ExpectMembers(example, definition);
                ++known;
            }
        EXPECT_GT(known, before) << "it has no example";
    }
    EXPECT_EQ(known, examples.size()) << "an example is no object of the schema";
}

TEST(JsonCodes, HaveEachARowOfTheirOwnWithCommandsThatThereAre)
{
    const QStringList commands = vellumo::CommandNames() << u"all"_s;
    for (const QString &line : TextOf(u"docs/json.md"_s).section(u"\n## "_s, 1).split(u'\n')) {
        if (!line.startsWith("| `"_L1))
            continue;
        const QStringList cells = line.split(u'|');
        ASSERT_EQ(cells.size(), 6) << line.toStdString();
        EXPECT_EQ(cells[1].count(u'`'), 2) << line.toStdString();
        for (const QString &command : cells[2].trimmed().split(u", "_s))
            EXPECT_TRUE(commands.contains(command)) << line.toStdString();
        EXPECT_TRUE(cells[4].contains(QRegularExpression(u"\\d"_s))) << line.toStdString();
    }
}

} // namespace
