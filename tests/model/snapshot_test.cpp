#include "model/snapshot.h"

#include "model/form_fields.h"
#include "model/project_file.h"
#include "model/project_writer.h"
#include "support/files.h"
#include "support/print.h"

#include <QCryptographicHash>
#include <gtest/gtest.h>

#include <limits>
#include <random>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

constexpr qsizetype headSize = 16 + 32; // the mark and the hash

Snapshot RoundTrip(const Snapshot &snapshot)
{
    Result<Snapshot> read = ReadSnapshot(WriteSnapshot(snapshot));
    EXPECT_TRUE(read);
    return read ? *read : Snapshot();
}

/// These bytes as the content of a snapshot, with the hash that belongs to them.
QByteArray WithHash(const QByteArray &content)
{
    return "Vellumo rescue 1" + QCryptographicHash::hash(content, QCryptographicHash::Sha256) +
           content;
}

/// What no project file can hold, or would not give back.
const QStringList oddTexts = {u"]]>"_s,
                              u"<![CDATA[x]]>"_s,
                              QString(QChar(u'\0')) + u"\x01\x1F\x7F"_s,
                              u" \r\n blanks at both ends \r"_s,
                              u"\u03A9\u4E2D\U0001F600"_s,
                              QString(QChar(0xD800)),
                              QString(QChar(0xFFFF)),
                              QString(100'000, u'x')};

Project OddProject()
{
    Project project;
    project.FormName = oddTexts[0];
    project.FormVersion = oddTexts[1];
    project.Description = oddTexts[2];
    project.FormPath = oddTexts[3];
    project.TitleList = oddTexts;
    project.source.SetMaxId(std::numeric_limits<int>::min());
    for (const QString &text : oddTexts) {
        project.source.Questions().Append({.Order = -1,
                                           .Title = text,
                                           .Question = text,
                                           .Type = text,
                                           .ColumnName = text,
                                           .Id = std::numeric_limits<int>::max()});
        project.source.Items().Append({.Id = 0, .Item = text});
    }
    return project;
}

TEST(Snapshot, HoldsAProjectAsItsFileDoes)
{
    const QString path = DataFile(u"projects/SiteVisit.vmp"_s);
    const Result<Project> loaded = LoadProject(path);
    ASSERT_TRUE(loaded);
    const QDateTime taken = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123);
    const Snapshot read = RoundTrip({*loaded, path, taken});
    EXPECT_EQ(read.path, path);
    EXPECT_EQ(read.taken, taken);
    const Result<QByteArray> before = WriteProject(*loaded), after = WriteProject(read.project);
    ASSERT_TRUE(before && after);
    EXPECT_EQ(*after, *before);
    EXPECT_EQ(read.project.source.GetPosition(), 0);
}

TEST(Snapshot, HoldsWhatNoProjectFileCan)
{
    const Project odd = OddProject();
    const Snapshot read = RoundTrip({odd, oddTexts[4], {}});
    EXPECT_EQ(read.path, oddTexts[4]);
    for (const FormFieldRow &row : formFields)
        EXPECT_EQ(read.project.*row.text, odd.*row.text);
    EXPECT_EQ(read.project.TitleList, odd.TitleList);
    EXPECT_EQ(read.project.source.MaxId(), odd.source.MaxId());
    const auto &questions = read.project.source.Questions().Rows();
    const auto &items = read.project.source.Items().Rows();
    ASSERT_EQ(questions.size(), oddTexts.size());
    ASSERT_EQ(items.size(), oddTexts.size());
    for (qsizetype i = 0; i < questions.size(); ++i) {
        const QString &text = oddTexts[i];
        for (const QString &held : {questions[i].Title, questions[i].Question, questions[i].Type,
                                    questions[i].ColumnName, items[i].Item})
            EXPECT_EQ(held, text);
        EXPECT_EQ(questions[i].Order, -1);
        EXPECT_EQ(questions[i].Id, std::numeric_limits<int>::max());
        EXPECT_EQ(items[i].Id, 0);
    }
}

TEST(Snapshot, HoldsANewProject)
{
    const Snapshot read = RoundTrip({});
    EXPECT_EQ(read.path, QString());
    EXPECT_EQ(read.project.source.QuestionCount(), 0);
    EXPECT_EQ(read.project.TitleList, QStringList{QString()});
}

TEST(Snapshot, NoPartOfOneIsOne)
{
    const QByteArray whole = WriteSnapshot({OddProject(), u"/a.vmp"_s, {}});
    for (qsizetype size = 0; size < 2000; ++size)
        EXPECT_FALSE(ReadSnapshot(whole.first(size))) << size;
    EXPECT_FALSE(ReadSnapshot(whole.chopped(1)));
    EXPECT_FALSE(ReadSnapshot(whole + 'x'));

    const QByteArray content = WriteSnapshot({}).sliced(headSize);
    for (qsizetype size = 0; size < content.size(); ++size)
        EXPECT_FALSE(ReadSnapshot(WithHash(content.first(size)))) << size;
    EXPECT_FALSE(ReadSnapshot(WithHash(content + 'x')));
    EXPECT_TRUE(ReadSnapshot(WithHash(content)));
}

TEST(Snapshot, NoneWithAChangedByteIsOne)
{
    const QByteArray whole = WriteSnapshot({{}, u"/a.vmp"_s, {}});
    for (qsizetype i = 0; i < whole.size(); ++i)
        for (const int mask : {0x01, 0x80, 0xFF}) {
            QByteArray changed = whole;
            changed[i] = static_cast<char>(changed[i] ^ mask);
            EXPECT_FALSE(ReadSnapshot(changed)) << i;
        }
}

TEST(Snapshot, NoBytesBringTheReaderDown)
{
    std::mt19937 random(20'250'101);
    const QByteArray content = WriteSnapshot({OddProject(), u"/a.vmp"_s, {}}).sliced(headSize);
    int whole = 0;
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes = content.first(static_cast<qsizetype>(random() % 400));
        for (int change = 0; change < 8 && !bytes.isEmpty(); ++change)
            bytes[static_cast<qsizetype>(random() % static_cast<size_t>(bytes.size()))] =
                static_cast<char>(random());
        whole += ReadSnapshot(bytes) ? 1 : 0;
        whole += ReadSnapshot(WithHash(bytes)) ? 1 : 0;
    }
    EXPECT_EQ(whole, 0) << "each lacks its end";

    // Counts and lengths that promise more than there is.
    for (qsizetype i = 0; i + 8 <= 400; ++i) {
        QByteArray bytes = content.first(400);
        bytes.replace(i, 8, QByteArray::fromHex("7fffffff7fffffff"));
        EXPECT_FALSE(ReadSnapshot(WithHash(bytes))) << i;
    }
}

} // namespace
