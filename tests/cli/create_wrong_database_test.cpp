#include "create_run.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

struct WrongDatabase {
    const char *what;
    QByteArray database;
};

/// Databases that are not the fittingNestbox's, of which this is the right one.
std::vector<WrongDatabase> WrongDatabases(const QByteArray &right)
{
    const auto changed = [&right](qsizetype at, char to) {
        QByteArray bytes = right;
        bytes[at] = to;
        return bytes;
    };
    return {
        {"an empty file", ""},
        {"half of it", right.first(right.size() / 2)},
        {"its last byte missing", right.chopped(1)},
        {"a byte too many", right + '\0'},
        {"another project's", BytesOf(DataFile(u"palm/text.prc"_s))},
        {"no database at all", BytesOf(fittingNestbox)},
        {"another name", changed(0, 'X')},
        {"not hidden", changed(32, '\0')},
        {"another type", changed(60, 'K')},
        {"another creator", changed(64, 'w')},
        {"a resource less", changed(77, char(right[77] - 1))},
        {"another number", changed(83, char(right[83] + 1))},
        {"a stale question", QByteArray(right).replace("Number on the box", "Number on the tag")},
        {"a stale item", QByteArray(right).replace("Great tit", "Coal tit!")},
        {"a stale column", QByteArray(right).replace("REMARKS", "REMARKZ")},
        {"a stale version", right.last(4) == QByteArray("1.0") + '\0'
                                ? right.chopped(4) + "1.1" + '\0'
                                : right.chopped(2) + "9" + '\0'},
    };
}

} // namespace

TEST_F(CreateCommand, TakesNoDatabaseThatIsNotTheProjects)
{
    ASSERT_EQ(Create({fittingNestbox}), 0);
    const QString target = InFolder(u"out/Nestbox.prc"_s);
    const QByteArray right = BytesOf(target);
    for (const WrongDatabase &row : WrongDatabases(right)) {
        SCOPED_TRACE(row.what);
        ASSERT_NE(row.database, right) << "damaged in name only";
        UseBuilderThatLeaves(row.database);
        EXPECT_EQ(Create({fittingNestbox}), 4);
        EXPECT_EQ(Out(), u""_s);
        EXPECT_TRUE(Err().startsWith(fittingNestbox + u": "_s)) << Err().toStdString();
        EXPECT_EQ(BytesOf(target), right) << "the earlier one stays";
    }
    UseBuilderThatLeaves(right);
    EXPECT_EQ(Create({fittingNestbox}), 0) << Err().toStdString();
}
