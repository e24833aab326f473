#include "every_input.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// With --json each input that is tried ends with one result, whatever becomes of it.
class Results : public EveryInput
{
protected:
    Results() { qputenv("PATH", PROGRAMS); }

    QList<QJsonObject> OfInputs() const
    {
        QList<QJsonObject> results;
        for (const QJsonObject &object : Objects())
            if (object[u"kind"_s] == u"result"_s && object.contains(u"input"_s))
                results += object;
        return results;
    }

    /// The words of a place with an input that is fine, and an output that cannot be written; empty
    /// where it has none.
    QStringList WithoutOutput(const InputPlace &place) const
    {
        QStringList words = place.words;
        const qsizetype at = words.indexOf(InFolder(u"out/made"_s));
        if (at < 0)
            return {};
        words[at] = InFolder(u"none/made"_s);
        if (place.kind == InputKind::Items)
            WriteBytes(Good(place.kind), Sample(place.kind));
        return QStringList{words.takeFirst(), u"--json"_s} + words + QStringList(Good(place.kind)) +
               place.after;
    }
};

} // namespace

TEST_F(Results, EndEachInputWhoseOutputCannotBeWritten)
{
    int tried = 0;
    for (const InputPlace &place : Places()) {
        const QStringList words = WithoutOutput(place);
        if (words.isEmpty())
            continue;
        SCOPED_TRACE(words.join(u' ').toStdString());
        EXPECT_EQ(Run(words), 5) << out.str();
        EXPECT_EQ(OfInputs().size(), words.first() == u"merge"_s ? 2 : 1);
        EXPECT_EQ(Objects().last()[u"code"_s], u"failed"_s);
        EXPECT_EQ(Objects().last()[u"exit"_s], 5);
        for (const QJsonObject &object : Objects()) {
            EXPECT_FALSE(object.contains(u"added"_s)) << "nothing was";
            EXPECT_FALSE(object[u"file"_s].toString().isEmpty());
        }
        ++tried;
    }
    EXPECT_GT(tried, 10);
}

TEST_F(Results, EndANewProjectThatCannotBeWritten)
{
    for (const QString &target : {InFolder(u"none/a.vmp"_s), Good(InputKind::Project)}) {
        EXPECT_EQ(Run({u"new"_s, u"Mine"_s, u"--json"_s, u"-o"_s, target}), 5);
        ASSERT_EQ(Objects().size(), 2);
        EXPECT_EQ(Objects()[0][u"code"_s], u"not-written"_s);
        EXPECT_EQ(Objects()[1], (QJsonObject{{u"kind"_s, u"result"_s},
                                             {u"code"_s, u"failed"_s},
                                             {u"file"_s, target},
                                             {u"exit"_s, 5},
                                             {u"message"_s, u"It failed."_s}}));
    }
}

TEST_F(Results, AreNoneWhereTheCommandLineMakesNoSense)
{
    const QString project = Good(InputKind::Project);
    const QStringList lines[] = {
        {},
        {u"make"_s},
        {u"create"_s},
        {u"columns"_s, u"--csv"_s, project},
        {u"create"_s, u"-o"_s, InFolder(u"a.prc"_s), project, project},
        {u"diff"_s, project},
        {u"diff"_s, u"--git"_s, project},
        {u"export"_s, project},
        {u"export"_s, u"--xlsform"_s, project},
        {u"import"_s, u"-"_s, u"--into"_s, u"-"_s, u"-o"_s, InFolder(u"b"_s)},
        {u"items"_s, project},
        {u"items"_s, project, u"--question"_s, u"3"_s},
        {u"items"_s, u"-"_s, u"--question"_s, u"3"_s, u"--from"_s, u"-"_s},
        {u"merge"_s, project, project},
        {u"new"_s, u"a b"_s, u"-o"_s, InFolder(u"b"_s)},
        {u"script"_s, project},
    };
    for (const QStringList &words : lines) {
        SCOPED_TRACE(words.join(u' ').toStdString());
        EXPECT_EQ(Run(words + QStringList(u"--json"_s)), 2);
        ASSERT_EQ(Objects().size(), 1);
        QJsonObject error = Objects()[0];
        EXPECT_FALSE(error.take(u"message"_s).toString().isEmpty());
        EXPECT_EQ(error, (QJsonObject{{u"kind"_s, u"error"_s},
                                      {u"code"_s, u"wrong-use"_s},
                                      {u"file"_s, u"vellumo"_s}}));
    }
}
