// Databases with bytes changed or missing: nothing of that may crash, and what can be noticed is.

#include "readback/findings.h"
#include "readback/summary.h"

#include <random>
#include <set>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

bool IsNoticed(const QByteArray &bytes, const Project &project)
{
    const Result<PalmDatabase> database = ReadDatabase(bytes);
    if (!database)
        return true;
    EXPECT_LE(Summarize(*database).titles.size(), database->resources.size());
    return !CheckDatabase(*database, project).isEmpty();
}

/// Where one byte may be another: the three times, the attribute of backups, the number of changes
/// and the seed that a handheld writes, and the digits of the identifier.
std::set<qsizetype> FreeBytes(const QByteArray &bytes)
{
    std::set<qsizetype> free;
    const auto add = [&free](qsizetype start, qsizetype count) {
        for (qsizetype i = 0; i < count; ++i)
            free.insert(start + i);
    };
    add(33, 1);
    add(36, 16);
    add(68, 4);
    qsizetype start = 80 + 10 * Read(bytes).resources.size();
    for (const PalmResource &resource : Read(bytes).resources) {
        if (resource.type == "guid")
            add(start, resource.data.size() - 1);
        start += resource.data.size();
    }
    return free;
}

QByteArray WithTurned(QByteArray bytes, qsizetype offset, unsigned bits)
{
    bytes[offset] = static_cast<char>(static_cast<unsigned char>(bytes[offset]) ^ bits);
    return bytes;
}

/// Ways to make a byte another one: each bit by itself, and several together. A digit and a letter
/// of the identifier become others of their kind in some of them.
constexpr unsigned ways[] = {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80,
                             0x03, 0x05, 0x0F, 0x55, 0x77, 0xAA, 0xF0, 0xFF};

} // namespace

TEST(DamagedBytes, EveryTruncationIsNoticed)
{
    for (const Project &project : {TextProject(), TenTypesProject()}) {
        const QByteArray bytes = Golden(project.FormName);
        for (qsizetype size = 0; size < bytes.size(); ++size)
            ASSERT_TRUE(IsNoticed(bytes.first(size), project)) << size;
    }
}

TEST(DamagedBytes, EveryByteCountsButTimesAndIdentifier)
{
    for (const Project &project : SmallProjects()) {
        SCOPED_TRACE(project.FormName.toStdString());
        const QByteArray bytes = Golden(project.FormName);
        ASSERT_FALSE(IsNoticed(bytes, project)) << "nothing is wrong with the whole file";
        std::set<qsizetype> unnoticed;
        for (qsizetype offset = 0; offset < bytes.size(); ++offset) {
            for (const unsigned bits : ways) {
                if (!IsNoticed(WithTurned(bytes, offset, bits), project))
                    unnoticed.insert(offset);
            }
        }
        EXPECT_EQ(unnoticed, FreeBytes(bytes));
        EXPECT_TRUE(IsNoticed(WithTurned(bytes, 33, 0x08 | 0x20), project));
        EXPECT_EQ(unnoticed.size(), 1u + 16u + 4u + 32u);
    }
}

TEST(DamagedBytes, AnyByteOfAllTypesTogetherCounts)
{
    const Project project = TenTypesProject();
    const QByteArray bytes = Golden(project.FormName);
    const std::set<qsizetype> free = FreeBytes(bytes);
    EXPECT_EQ(free.size(), 1u + 16u + 4u + 32u);
    std::mt19937 random(20240229);
    for (int i = 0; i < 4000; ++i) {
        const auto offset = static_cast<qsizetype>(random() % static_cast<size_t>(bytes.size()));
        const unsigned bits = ways[random() % std::size(ways)];
        const bool noticed = IsNoticed(WithTurned(bytes, offset, bits), project);
        ASSERT_TRUE(noticed || free.contains(offset)) << offset << ' ' << bits;
    }
}

TEST(DamagedBytes, ManyBytesAtOnceAreNoticed)
{
    std::mt19937 random(7);
    for (const Project &project : {TextProject(), TenTypesProject()}) {
        const QByteArray bytes = Golden(project.FormName);
        for (int i = 0; i < 2000; ++i) {
            QByteArray damaged = bytes;
            for (int change = 0; change < 20; ++change)
                damaged[static_cast<qsizetype>(random() % static_cast<size_t>(bytes.size()))] =
                    static_cast<char>(random());
            ASSERT_TRUE(damaged == bytes || IsNoticed(damaged, project)) << i;
        }
    }
}
