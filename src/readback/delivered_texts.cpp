#include "readback/delivered_texts.h"

#include "handheld/script_text.h"

#include <QHash>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

QByteArray DeliverFolder(QByteArray folder)
{
    // A script has every backslash twice, so the escapes leave each as it was.
    if (!folder.endsWith('\\'))
        folder.append('\\');
    return folder;
}

/// Turns the texts of a project into those of a database, each with the escapes that its place in a
/// resource script has.
class Delivery
{
public:
    Delivery(const Project &project, std::span<const DeliveredType> types, QList<Finding> &findings)
        : m_project(project),
          m_types(types),
          m_findings(findings),
          m_items(project.source.ItemsById())
    {}

    DeliveredTexts Deliver() const
    {
        DeliveredTexts texts;
        // The name and the folder are no texts of the script's that escapes are interpreted in.
        texts.databaseName = Encoded(TrimBlanks(m_project.FormName), {"database name"_L1});
        texts.formName = AsWritten(m_project.FormName, {"form name"_L1});
        texts.version = AsWritten(m_project.FormVersion, {"form version"_L1});
        texts.description = AsWording(m_project.Description, {"description"_L1});
        texts.folder = DeliverFolder(Encoded(m_project.FormPath, {"data folder"_L1}));
        int number = 0;
        for (const QuestionRow &row : m_project.source.Questions().Rows())
            texts.questions.append(DeliverQuestion(row, ++number));
        return texts;
    }

private:
    DeliveredQuestion DeliverQuestion(const QuestionRow &row, int number) const
    {
        const DeliveredType &type = TypeOfName(m_types, row.Type);
        // Rows can be left over from another type that the question had before.
        const QStringList items = type.ownsItems ? m_items.value(row.Id) : QStringList();
        return {.type = &type,
                .title = AsWritten(row.Title, {"title"_L1, number}),
                .text = AsWording(row.Question, {"question text"_L1, number}),
                .columnName = AsWritten(row.ColumnName, {"column name"_L1, number}),
                .items = InterpretItems(Encoded(items.join(u','), {"item list"_L1, number}))};
    }

    QByteArray Encoded(QStringView text, const TextPlace &place) const
    {
        QByteArray bytes;
        const Outcome encoded = AppendEncoded(bytes, text, place);
        if (!encoded)
            m_findings.append({"not-encodable"_L1, place, encoded.error().text});
        return bytes;
    }

    /// A text that stands in the script as it was typed.
    QByteArray AsWritten(QStringView text, const TextPlace &place) const
    {
        return InterpretScriptText(Encoded(text, place));
    }

    /// A text in free wording, whose quotes are escaped in the script.
    QByteArray AsWording(QStringView text, const TextPlace &place) const
    {
        return InterpretScriptText(WithEscapedQuotes(Encoded(text, place)));
    }

    const Project &m_project;
    std::span<const DeliveredType> m_types;
    QList<Finding> &m_findings;
    QHash<int, QStringList> m_items; ///< by the Id of their question
};

} // namespace

DeliveredTexts DeliverTexts(const Project &project, std::span<const DeliveredType> types,
                            QList<Finding> &findings)
{
    return Delivery(project, types, findings).Deliver();
}

} // namespace vellumo
