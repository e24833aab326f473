#include "readback/palm_database.h"

#include "readback/databases.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr qsizetype entries = 78;
constexpr qsizetype entrySize = 10;
constexpr qsizetype entryOffset = 6;

/// The error, or "read".
QString DatabaseRefusal(const QByteArray &bytes)
{
    const Result<PalmDatabase> database = ReadDatabase(bytes);
    return database ? u"read"_s : database.error().text;
}

} // namespace

TEST(PalmDatabase, ReadsEveryGoldenDatabase)
{
    ASSERT_GE(GoldenNames().size(), 24);
    for (const QString &name : GoldenNames()) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray bytes = Golden(name);
        const PalmDatabase database = Read(bytes);
        qsizetype size = entries + 2;
        for (const PalmResource &resource : database.resources)
            size += entrySize + resource.data.size();
        EXPECT_EQ(size, bytes.size()) << "every byte belongs to something";
        EXPECT_EQ(database.size, bytes.size());
    }
}

TEST(PalmDatabase, ReadsEveryValue)
{
    const PalmDatabase database = Read(Golden(u"text"_s));
    EXPECT_EQ(database.name, "text");
    EXPECT_EQ(database.type, "kelp");
    EXPECT_EQ(database.creator, "Wmpt");
    EXPECT_EQ(database.attributes, 0x0101u);
    EXPECT_EQ(database.version, 1u);
    ASSERT_EQ(database.resources.size(), 11);
    EXPECT_EQ(Describe(database.resources.first().Key()), u"'desc' 1003"_s);
    EXPECT_EQ(database.resources.first().data, QByteArray("One question\0", 13));
    EXPECT_EQ(Describe(database.resources.last().Key()), u"'tver' 1"_s);
    EXPECT_EQ(database.resources.last().data, QByteArray("1.0\0", 4));

    EXPECT_EQ(DataOf(database, "tFRM", 1).size(), 382);
}

TEST(PalmDatabase, DescribesAResource)
{
    EXPECT_EQ(Describe(ResourceKey{"%2%1", 7}), u"'%2%1' 7"_s);
    EXPECT_EQ(Describe(ResourceKey{{"\x1B[\0\xE9", 4}, 65535}), u"'\\x1b[\\x00\u00E9' 65535"_s);
}

TEST(PalmDatabase, ReadsTheTimesAsWritten)
{
    const QByteArray bytes = WithNumber(WithNumber(Golden(u"text"_s), 36, 4, 0xE2000001), 40, 4, 7);
    EXPECT_EQ(Read(bytes).created, 0xE2000001u);
    EXPECT_EQ(Read(bytes).modified, 7u);
    EXPECT_EQ(Read(bytes).backedUp, 0u);
    EXPECT_EQ(Read(WithNumber(bytes, 44, 4, 0xB0000009)).backedUp, 0xB0000009u);
}

TEST(PalmDatabase, RefusesWhatTheLayoutDoesNotAllow)
{
    const QByteArray text = Golden(u"text"_s);
    const qsizetype first = entries, second = entries + entrySize;
    const struct {
        const char *what;
        QByteArray bytes;
        QString reason;
    } rows[] = {
        {"nothing", "", u"it ends too early, at byte 0"_s},
        {"a text file", QByteArray("Hello\n").repeated(20), u"its name has no end"_s},
        {"a name of 32 bytes", QByteArray(32, 'x') + text.sliced(32), u"its name has no end"_s},
        {"a name with something behind it", WithNumber(text, 31, 1, 1),
         u"there is something after the end of its name"_s},
        {"a database of records", WithNumber(text, 32, 2, 0x0100),
         u"it is not marked as one of resources"_s},
        {"application information", WithNumber(text, 52, 4, 0x80), u"byte 55 is not zero"_s},
        {"a next list of entries", WithNumber(text, 72, 4, 0x8000), u"byte 74 is not zero"_s},
        {"a count too large", WithNumber(text, 76, 2, 0xFFFF), u"it ends too early, at byte 703"_s},
        {"a count too small", WithNumber(text, 76, 2, 10), u"byte 178 is not zero"_s},
        {"something in the gap", WithNumber(text, 189, 1, 1), u"byte 189 is not zero"_s},
        {"a resource twice", QByteArray(text).replace(second, 6, text.mid(first, 6)),
         u"resource 'desc' 1003 is there twice"_s},
        {"data that begin too late", WithNumber(text, first + entryOffset, 4, 191),
         u"resource 'desc' 1003 cannot reach from byte 191 to byte 203"_s},
        {"data in the table", WithNumber(text, first + entryOffset, 4, 78),
         u"resource 'desc' 1003 cannot reach from byte 78 to byte 203"_s},
        {"an offset out of order", WithNumber(text, second + entryOffset, 4, 189),
         u"resource 'desc' 1003 cannot reach from byte 190 to byte 189"_s},
        {"an offset outside of the file", WithNumber(text, second + entryOffset, 4, 0xFFFFFFFF),
         u"resource 'desc' 1003 cannot reach from byte 190 to byte 4294967295"_s},
        {"a resource too large", text + QByteArray(65532, '\0'),
         u"resource 'tver' 1 has 65536 bytes, more than 65535"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(DatabaseRefusal(row.bytes),
                  u"This is no sound Palm database: %1."_s.arg(row.reason));
    }
    EXPECT_EQ(DatabaseRefusal(text + QByteArray(65531, '\0')), u"read"_s) << "the largest resource";
}

TEST(PalmDatabase, ReadsWhatAHandheldCounts)
{
    const QByteArray text = Golden(u"text"_s);
    EXPECT_EQ(Read(text).changes, 0u);
    EXPECT_EQ(Read(text).idSeed, 0u);
    const PalmDatabase database =
        Read(WithNumber(WithNumber(text, 48, 4, 0xF0000003), 68, 4, 0xE0000007));
    EXPECT_EQ(database.changes, 0xF0000003u);
    EXPECT_EQ(database.idSeed, 0xE0000007u);
}

TEST(PalmDatabase, PutsResourcesInTheirOrder)
{
    const QByteArray text = Golden(u"text"_s);
    EXPECT_EQ(Read(text).disorder, u""_s);
    QList<PalmResource> resources = Read(text).resources;
    std::ranges::reverse(resources);
    const QByteArray bytes = WithResources(text, resources);
    ASSERT_NE(bytes, text);
    const PalmDatabase database = Read(bytes);
    EXPECT_EQ(WithResources(text, database.resources), text);
    EXPECT_EQ(database.disorder, u"'tSTL' 1004 stands after 'tver' 1"_s);

    resources.prepend(resources.last());
    EXPECT_EQ(DatabaseRefusal(WithResources(text, resources)),
              u"This is no sound Palm database: resource 'desc' 1003 is there twice."_s);
}

TEST(PalmDatabase, ReadsOneWithoutResources)
{
    const QByteArray empty = Golden(u"text"_s).first(76) + QByteArray(4, '\0');
    EXPECT_TRUE(Read(empty).resources.isEmpty());
    EXPECT_EQ(DatabaseRefusal(empty + '\0'),
              u"This is no sound Palm database: it should end at byte 80, but has 81 bytes."_s);
}

TEST(PalmDatabase, RefusesEveryTruncationBeforeTheLastResource)
{
    const QByteArray text = Golden(u"text"_s);
    for (qsizetype size = 0; size < text.size() - 4; ++size)
        ASSERT_NE(DatabaseRefusal(text.first(size)), u"read"_s) << size;
}
