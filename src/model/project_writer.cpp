#include "model/project_writer.h"

#include "model/form_fields.h"
#include "model/project_format.h"
#include "model/texts.h"
#include "platform/code_page.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Every reader of XML takes a line's end for a line feed; written as one it stays the same.
QString WithLineFeeds(QStringView text)
{
    return text.toString().replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
}

/// Gathers the lines of the file; after a failure it gathers nothing more and keeps the error.
class Writer
{
public:
    void Line(QByteArrayView text)
    {
        m_bytes.append(text);
        m_bytes.append("\r\n");
    }

    void Value(QByteArrayView tag, QStringView value, const TextPlace &place)
    {
        value = TrimBlanks(value);
        m_bytes.append('<').append(tag).append('>');
        if (!value.isEmpty()) {
            m_bytes.append("<![CDATA[");
            Text(value, place);
            m_bytes.append("]]>");
        }
        m_bytes.append("</").append(tag).append(">\r\n");
    }

    void Number(QByteArrayView tag, int number) { Value(tag, QString::number(number), {}); }

    Result<QByteArray> Finish()
    {
        if (!m_state)
            return m_state.error();
        if (m_bytes.size() > projectLimit.bytes)
            return Error{u"The project is larger than any file of one can be."_s};
        return std::move(m_bytes);
    }

private:
    void Text(QStringView value, const TextPlace &place)
    {
        if (!m_state)
            return;
        QString normalized;
        if (value.contains(u'\r')) {
            normalized = WithLineFeeds(value);
            value = normalized;
        }
        const auto forbidden = std::ranges::find_if(value, [](QChar character) {
            return character < u' ' && character != u'\t' && character != u'\n';
        });
        if (forbidden != value.end())
            m_state =
                Error{u"%1 has a control character (%2), which a project file cannot hold."_s.arg(
                    Describe(place), DescribeCharacter({forbidden, 1}, 0))};
        else
            m_state = AppendEncoded(m_bytes, value, place);
    }

    QByteArray m_bytes;
    Outcome m_state = done;
};

void WriteForm(Writer &writer, const Project &project)
{
    for (const FormFieldRow &row : formFields)
        writer.Value(row.element.latin1(), project.*row.text, {row.name});
    writer.Number("MaxId", project.source.MaxId());
}

/// Returns the position of each question, from 1, by its Id.
QHash<int, int> WriteQuestions(Writer &writer, const clsDataSource &source)
{
    QHash<int, int> positions;
    int position = 0;
    writer.Line("<rcMain>");
    for (const QuestionRow &row : source.Questions().Rows()) {
        positions.insert(row.Id, ++position);
        writer.Line("<record>");
        writer.Number("Order", row.Order);
        writer.Value("Type", row.Type, {"type"_L1, position});
        writer.Value("Title", row.Title, {"title"_L1, position});
        writer.Value("ColumnName", row.ColumnName, {"column name"_L1, position});
        writer.Value("Question", row.Question, {"question text"_L1, position});
        writer.Number("Id", row.Id);
        writer.Line("</record>");
    }
    writer.Line("</rcMain>");
    return positions;
}

void WriteItems(Writer &writer, const clsDataSource &source, const QHash<int, int> &positions)
{
    writer.Line("<rcChilds>");
    for (const ItemRow &row : source.Items().Rows()) {
        writer.Line("<record>");
        writer.Number("Id", row.Id);
        writer.Value("Item", row.Item, {"item list"_L1, positions.value(row.Id)});
        writer.Line("</record>");
    }
    writer.Line("</rcChilds>");
}

void WriteTitles(Writer &writer, const QStringList &titles)
{
    writer.Line("<TitleList>");
    if (!titles.isEmpty() && !titles.first().isEmpty())
        for (const QString &title : titles)
            writer.Value("Item", title, {"title history"_L1});
    writer.Line("</TitleList>");
}

} // namespace

Result<QByteArray> WriteProject(const Project &project)
{
    Writer writer;
    writer.Line(R"(<?xml version="1.0" encoding="windows-1252"?>)");
    writer.Line("<root>");
    writer.Line("<Company>" + QByteArray(companyTags.front().latin1()) + "</Company>");
    WriteForm(writer, project);
    const QHash<int, int> positions = WriteQuestions(writer, project.source);
    writer.Line({});
    WriteItems(writer, project.source, positions);
    WriteTitles(writer, project.TitleList);
    writer.Line("</root>");
    return writer.Finish();
}

} // namespace vellumo
