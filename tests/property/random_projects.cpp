#include "property/random_projects.h"

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

const QString plain = u"abcXYZ 0189_-+.()äéÿß"_s;
const QString awkward = u"\"\\',;:<>&|?*/[]%{}\t\r\n !€\u0081\u00a0"_s;
const QString impossible = u"Ωж\u0001\u000b\ufffe"_s;

constexpr std::array typeNames = {
    "Text"_L1,  "Numeric"_L1,   "Pulldown List"_L1, "Yes/No"_L1,          "Signature"_L1,
    "Notes"_L1, "Date/Time"_L1, "Currency"_L1,      "Scanned Barcode"_L1, "Checkboxes"_L1};

QChar RandomLetter(Random &random, Letters letters)
{
    if (letters == Letters::Anything && random.OnceIn(50))
        return random.OneOf(impossible);
    if (letters != Letters::Plain && random.OnceIn(4))
        return random.OneOf(awkward);
    return random.OneOf(plain);
}

int RandomNumber(Random &random)
{
    constexpr int least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    return random.OnceIn(5) ? random.OneOf(std::array{least, most, -1, 0}) : random.Between(1, 9);
}

/// A text that neither begins nor ends with a blank and is not empty.
QString Word(Random &random, int longest)
{
    const int length = random.Between(1, longest);
    QString text;
    while (text.size() < length) {
        const QChar letter = RandomLetter(random, Letters::Plain);
        if (letter != u' ' || (!text.isEmpty() && text.size() < length - 1))
            text += letter;
    }
    return text;
}

QString WithoutBlanks(QString text)
{
    return text.replace(u' ', u'x');
}

QuestionRow RandomRow(Random &random, Letters letters)
{
    return {.Order = RandomNumber(random),
            .Title = RandomText(random, 25, letters),
            .Question = RandomText(random, 260, letters),
            .Type = RandomType(random, letters),
            .ColumnName = RandomText(random, 30, letters),
            .Id = RandomNumber(random)};
}

} // namespace

int RandomLength(Random &random, int limit)
{
    return random.OnceIn(2) ? limit + random.Between(-1, 1) : random.Between(0, limit);
}

QString RandomText(Random &random, int longest, Letters letters)
{
    QString text;
    for (int length = random.Between(0, longest); text.size() < length;)
        text += RandomLetter(random, letters);
    return text;
}

QString RandomType(Random &random, Letters letters)
{
    if (letters != Letters::Plain && random.OnceIn(20))
        return RandomText(random, 10, letters);
    return random.OneOf(typeNames);
}

Project RandomProject(Random &random, Letters letters)
{
    Project project = {.FormName = RandomText(random, 30, letters),
                       .FormVersion = RandomText(random, 40, letters),
                       .Description = RandomText(random, 250, letters),
                       .FormPath = RandomText(random, 40, letters)};
    for (int i = random.Below(12); i > 0; --i)
        project.TitleList += RandomText(random, 25, letters);
    if (project.TitleList.size() > 1 && random.OnceIn(2))
        project.TitleList.removeFirst();
    for (int i = random.Below(8); i > 0; --i)
        project.source.Questions().Append(RandomRow(random, letters));
    for (int i = random.Below(20); i > 0; --i)
        project.source.Items().Append({RandomNumber(random), RandomText(random, 40, letters)});
    project.source.SetMaxId(RandomNumber(random));
    return project;
}

Project RandomSoundProject(Random &random)
{
    Project project = {.FormName = WithoutBlanks(Word(random, 24)),
                       .FormVersion = WithoutBlanks(RandomText(random, 32, Letters::Plain)),
                       .Description = RandomText(random, 200, Letters::Plain),
                       .FormPath = u"C:\\"_s + Word(random, 40)};
    const int count = random.OnceIn(20) ? 128 : random.Between(1, 8);
    for (int order = 1; order <= count; ++order) {
        const QString type = RandomType(random, Letters::Plain);
        const int id = project.source.IssueId();
        project.source.Questions().Append({.Order = order,
                                           .Title = RandomText(random, 20, Letters::Plain),
                                           .Question = Word(random, 255),
                                           .Type = type,
                                           .ColumnName = u"%1_%2"_s.arg(Word(random, 20)).arg(id),
                                           .Id = id});
        const int most = type == "Checkboxes"_L1 ? 32 : type == "Pulldown List"_L1 ? 255 : 0;
        for (int i = most == 0 ? 0 : random.OnceIn(10) ? most : random.Between(1, 5); i > 0; --i)
            project.source.Items().Append({id, Word(random, 32)});
    }
    return project;
}

QString Trimmed(QString text)
{
    while (text.startsWith(u' '))
        text.remove(0, 1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

QStringList LinesOf(const Project &project)
{
    QStringList lines = {project.FormName, project.FormVersion, project.Description,
                         project.FormPath, u"next %1"_s.arg(project.source.MaxId())};
    lines += u"%1 titles"_s.arg(project.TitleList.size());
    lines += project.TitleList;
    for (const QuestionRow &row : project.source.Questions().Rows())
        lines += {u"question %1, %2"_s.arg(row.Order).arg(row.Id), row.Title, row.Question,
                  row.Type, row.ColumnName};
    for (const ItemRow &row : project.source.Items().Rows())
        lines += {u"item of %1"_s.arg(row.Id), row.Item};
    return lines;
}

} // namespace vellumo
