#include "palmgen/script_generator.h"

#include "model/form_fields.h"
#include "model/question_types.h"
#include "model/texts.h"
#include "palmgen/type_script.h"

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// The count of questions is a byte of the resource 'flds'.
constexpr int largestCount = 255;

TextPlace PlaceOf(FormField field)
{
    return {RowOf(field).name};
}

/// Gathers the script; after a failure it gathers nothing more.
class Writer
{
public:
    explicit Writer(const Project &project)
        : m_project(project), m_items(project.source.ItemsById())
    {}

    Script Write(QStringView identifier)
    {
        WriteCount();
        WriteCodes("hex\"fldt\" ID 1001\r\n", FieldDataCode);
        WriteCodes("hex\"ques\" ID 1002\r\n", QuestionKindCode);
        WriteTexts(identifier);
        int number = 0;
        for (const QuestionRow &question : m_project.source.Questions().Rows())
            WriteForm(++number, question);
        WriteApplication();
        return std::move(m_script);
    }

private:
    void Literal(QByteArrayView text)
    {
        if (m_script.outcome)
            m_script.bytes.append(text);
    }

    void Text(QStringView text, const TextPlace &place)
    {
        if (m_script.outcome)
            m_script.outcome = AppendEncoded(m_script.bytes, text, place);
    }

    void Fail(const QString &reason)
    {
        if (m_script.outcome)
            m_script.outcome = Error{reason};
    }

    void WriteCount();
    void WriteCodes(QByteArrayView header, QLatin1StringView (*codeOf)(QStringView type));
    void WriteTexts(QStringView identifier);
    void WriteColumnNames();
    void WriteForm(int number, const QuestionRow &question);
    void WriteControls(int number, const QuestionRow &question);
    void WriteApplication();

    const Project &m_project;
    const QHash<int, QStringList> m_items;
    Script m_script;
};

void Writer::WriteCount()
{
    const int count = m_project.source.QuestionCount();
    if (count > largestCount)
        Fail(u"The project has %1 questions, and a script holds no more than %2"_s.arg(count).arg(
            largestCount));
    Literal("hex\"flds\" ID 1000\r\n0x00 0x");
    Literal(QByteArray::number(count, 16).toUpper().rightJustified(2, '0'));
    Literal("\r\n");
}

void Writer::WriteCodes(QByteArrayView header, QLatin1StringView (*codeOf)(QStringView type))
{
    Literal(header);
    for (const QuestionRow &question : m_project.source.Questions().Rows()) {
        Literal(codeOf(question.Type));
        Literal(" ");
    }
    Literal("\r\n");
}

void Writer::WriteTexts(QStringView identifier)
{
    Literal("hex\"desc\" ID 1003\r\n\"");
    Text(EscapeScriptString(m_project.Description), PlaceOf(FormField::Description));
    Literal("\" 0x00\r\n\r\n");
    WriteColumnNames();

    QString folder = m_project.FormPath;
    if (!folder.endsWith(u'\\'))
        folder += u'\\';
    Literal("HEX \"sdir\" id 1005\r\n\"");
    Text(folder.replace(u'\\', u"\\\\"_s), PlaceOf(FormField::DataFolder));
    Literal("\" 0x00\r\n\r\nHEX \"guid\" id 1006\r\n\"");
    Text(identifier, {"identifier"_L1});
    Literal("\" 0x00\r\n\r\n");
}

void Writer::WriteColumnNames()
{
    Literal("STRINGTABLE ID 1004 \"\"");
    int number = 0;
    for (const QuestionRow &question : m_project.source.Questions().Rows()) {
        Literal(" \"");
        Text(question.ColumnName, {"column name"_L1, ++number});
        Literal("\"");
    }
    Literal("\r\n\r\n");
}

void Writer::WriteForm(int number, const QuestionRow &question)
{
    const QByteArray formNumber = QByteArray::number(number);
    Literal("FORM ID " + formNumber + " at (0 0 160 160)\r\n");
    Literal("noframe\r\n"
            "nosavebehind\r\n"
            "begin\r\n"
            "title \"");
    Text(question.Title, {"title"_L1, number});
    Literal("\"\r\nlabel \"");
    Text(EscapeScriptString(question.Question), {"question text"_L1, number});
    Literal("\" id 1 AT (10 34) FONT 1\r\n");
    WriteControls(number, question);
    Literal("BUTTON \"\\v\" ID 97 AT (150 33 8 13) FONT 3 NOFRAME\r\n"
            "FIELD id 98 at (10 21 80 13) MAXCHARS 15 NONEDITABLE\r\n"
            "BUTTON \"Prev\" id 99 at (2 144 35 15)\r\n"
            "BUTTON \"Next\" id 100 at (PREVRIGHT+85 PREVTOP PREVWIDTH PREVHEIGHT)\r\n"
            "BUTTON \"Clear\" id 101 at (64 144 PREVWIDTH PREVHEIGHT)\r\n"
            "BUTTON \"\\t\" id 102 at (148 2 8 11) FONT 3 NOFRAME\r\n"
            "end\r\n");
    Literal("NAVIGATION ID " + formNumber + "\r\n");
    Text(NavigationBody(question.Type), {});
    Literal("\r\n");
}

void Writer::WriteControls(int number, const QuestionRow &question)
{
    QString items;
    if (HasItems(question.Type)) {
        const auto owned = m_items.find(question.Id);
        if (owned == m_items.end())
            Fail(u"Question %1 is a list without items"_s.arg(number));
        else
            items = owned->join(u',');
    }
    Text(ControlLines(question.Type, items), {"item list"_L1, number});
}

void Writer::WriteApplication()
{
    Literal("applicationiconname id 1000 \"");
    Text(m_project.FormName, PlaceOf(FormField::Name));
    Literal("\"\r\nversion id 1 \"");
    Text(m_project.FormVersion, PlaceOf(FormField::Version));
    Literal("\"\r\n");
}

} // namespace

Script GenerateScript(const Project &project, QStringView identifier)
{
    return Writer(project).Write(identifier);
}

QString IdentifierDigits(QString registryForm)
{
    return registryForm.remove(u'-').remove(u'{').remove(u'}');
}

QString EscapeScriptString(QStringView text)
{
    QString escaped;
    for (const QChar character : text) {
        if (character == u'"') {
            while (escaped.endsWith(u'\\'))
                escaped.chop(1);
            escaped += u'\\';
        }
        escaped += character;
    }
    return escaped;
}

} // namespace vellumo
