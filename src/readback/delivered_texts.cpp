#include "readback/delivered_texts.h"

#include "model/question_types.h"
#include "readback/script_text.h"

#include <QHash>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QByteArray Encoded(QStringView text, const TextPlace &place, QList<Finding> &findings)
{
    QByteArray bytes;
    const Outcome encoded = AppendEncoded(bytes, text, place);
    if (!encoded)
        findings.append({"not-encodable"_L1, place, encoded.error().text});
    return bytes;
}

/// The items are joined with commas and split at all of them; an empty whole is no item.
QList<QByteArray> DeliverItems(const QByteArray &joined)
{
    QList<QByteArray> items;
    if (!joined.isEmpty()) {
        for (const QByteArray &written : joined.split(','))
            items.append(InterpretScriptText(written));
    }
    return items;
}

QByteArray DeliverFolder(QByteArray folder)
{
    // A script has every backslash twice, so the escapes leave each as it was.
    if (!folder.endsWith('\\'))
        folder.append('\\');
    return folder;
}

} // namespace

DeliveredTexts DeliverTexts(const Project &project, QList<Finding> &findings)
{
    const auto asWritten = [&findings](QStringView text, const TextPlace &place) {
        return InterpretScriptText(Encoded(text, place, findings));
    };
    const auto asWording = [&findings](QStringView text, const TextPlace &place) {
        return InterpretScriptText(WithEscapedQuotes(Encoded(text, place, findings)));
    };

    DeliveredTexts texts;
    texts.databaseName = Encoded(TrimBlanks(project.FormName), {"database name"_L1}, findings);
    texts.formName = asWritten(project.FormName, {"form name"_L1});
    texts.version = asWritten(project.FormVersion, {"form version"_L1});
    texts.description = asWording(project.Description, {"description"_L1});
    texts.folder = DeliverFolder(Encoded(project.FormPath, {"data folder"_L1}, findings));

    QHash<int, QStringList> items;
    for (const ItemRow &row : project.source.Items().Rows())
        items[row.Id].append(row.Item);
    int number = 0;
    for (const QuestionRow &row : project.source.Questions().Rows()) {
        ++number;
        const QString joined = HasItems(row.Type) ? items.value(row.Id).join(u',') : QString();
        texts.questions.append(
            {.type = row.Type,
             .title = asWritten(row.Title, {"title"_L1, number}),
             .text = asWording(row.Question, {"question text"_L1, number}),
             .columnName = asWritten(row.ColumnName, {"column name"_L1, number}),
             .items = DeliverItems(Encoded(joined, {"item list"_L1, number}, findings))});
    }
    return texts;
}

} // namespace vellumo
