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

/// Where one byte may be another: the times, the digits of the identifier, the widths of lists.
std::set<qsizetype> FreeBytes(const QByteArray &bytes)
{
    std::set<qsizetype> free;
    const auto add = [&free](qsizetype start, qsizetype count) {
        for (qsizetype i = 0; i < count; ++i)
            free.insert(start + i);
    };
    add(36, 8);
    qsizetype start = 80 + 10 * Read(bytes).resources.size();
    for (const PalmResource &resource : Read(bytes).resources) {
        if (resource.type == "guid")
            add(start, resource.data.size() - 1);
        for (const char *list : {"\0\x03\0\x0D\0\x1E", "\0\x04\0\x0D\0\x35"}) {
            if (const qsizetype at = resource.data.indexOf(QByteArrayView(list, 6)); at >= 0)
                add(start + at + 6, 2);
        }
        start += resource.data.size();
    }
    return free;
}

QByteArray WithBitTurned(QByteArray bytes, qsizetype offset, unsigned bit)
{
    bytes[offset] = static_cast<char>(static_cast<unsigned char>(bytes[offset]) ^ 1U << bit);
    return bytes;
}

} // namespace

TEST(DamagedBytes, EveryTruncationIsNoticed)
{
    for (const Project &project : {TextProject(), TenTypesProject()}) {
        const QByteArray bytes = Golden(project.FormName);
        for (qsizetype size = 0; size < bytes.size(); ++size)
            ASSERT_TRUE(IsNoticed(bytes.first(size), project)) << size;
    }
}

TEST(DamagedBytes, EveryBitCounts)
{
    const Project project = TextProject();
    const QByteArray bytes = Golden(project.FormName);
    const std::set<qsizetype> free = FreeBytes(bytes);
    EXPECT_EQ(free.size(), 8u + 32u);
    ASSERT_FALSE(IsNoticed(bytes, project)) << "nothing is wrong with the whole file";
    for (qsizetype offset = 0; offset < bytes.size(); ++offset) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            const bool noticed = IsNoticed(WithBitTurned(bytes, offset, bit), project);
            ASSERT_TRUE(noticed || free.contains(offset)) << offset << ' ' << bit;
        }
    }
}

TEST(DamagedBytes, AnyByteOfAllTypesCounts)
{
    const Project project = TenTypesProject();
    const QByteArray bytes = Golden(project.FormName);
    const std::set<qsizetype> free = FreeBytes(bytes);
    EXPECT_EQ(free.size(), 8u + 32u + 2u * 2u);
    std::mt19937 random(20240229);
    for (int i = 0; i < 4000; ++i) {
        const auto offset = static_cast<qsizetype>(random() % static_cast<size_t>(bytes.size()));
        const unsigned bit = random() % 8;
        const bool noticed = IsNoticed(WithBitTurned(bytes, offset, bit), project);
        ASSERT_TRUE(noticed || free.contains(offset)) << offset << ' ' << bit;
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
