#include "model/project_reader.h"

#include "model/form_fields.h"
#include "model/named_texts.h"
#include "model/project_format.h"
#include "model/xml_reader.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <charconv>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

using Names = std::span<const QLatin1StringView>;

/// The company, the form information and the next Id.
constexpr auto namesOfDocument = [] {
    std::array<QLatin1StringView, formFields.size() + 2> names;
    names.front() = QLatin1StringView("Company");
    for (size_t i = 0; i < formFields.size(); ++i)
        names[i + 1] = formFields[i].element;
    names.back() = QLatin1StringView("MaxId");
    return names;
}();

constexpr std::array namesOfQuestion = {"Order"_L1,      "Type"_L1,     "Title"_L1,
                                        "ColumnName"_L1, "Question"_L1, "Id"_L1};
constexpr std::array namesOfItem = {"Id"_L1, "Item"_L1};

/// Not QString::fromUtf8, which takes U+FEFF at the beginning for a byte order mark.
QString FromUtf8(const std::string &text)
{
    using Flag = QStringConverter::Flag;
    return QStringDecoder(QStringConverter::Utf8,
                          Flag::Stateless | Flag::ConvertInitialBom)(QByteArrayView(text));
}

/// Knows by depth alone what an element is: 1 = the document, 2 = a section or a text of the
/// document, 3 = a record or a title, 4 = a text of a record. A text has everything that is in it.
class Reader : private XmlReader
{
public:
    Result<Project> Read(const QByteArray &bytes)
    {
        m_document.Begin(namesOfDocument);
        if (const Outcome read = ReadDocument(bytes); !read)
            return read.error();
        m_project.source.MoveFirst();
        return std::move(m_project);
    }

private:
    struct Section {
        QLatin1StringView name;
        std::string_view child; ///< as it is written; another name is read as well
        Names names;            ///< of the texts of a child; none = the child is a text itself
        void (Reader::*take)();
        bool met = false;
    };

    bool StartElement(std::string_view name) override;
    void EndElement() override;
    void Text(std::string_view piece) override { *m_text += piece; }

    bool EnterSection(std::string_view name);
    bool EnterText(std::string *text);

    void TakeDocument();
    void TakeForm();
    void TakeQuestion();
    void TakeItem();
    void TakeTitle() { m_titles.append(FromUtf8(m_title)); }

    int Number(QLatin1StringView name, const std::string &text);
    void RefuseIncomplete(const NamedTexts &texts, Names names);

    std::array<Section, 3> m_sections = {
        {{"rcMain"_L1, "record", namesOfQuestion, &Reader::TakeQuestion},
         {"rcChilds"_L1, "record", namesOfItem, &Reader::TakeItem},
         {"TitleList"_L1, "Item", {}, &Reader::TakeTitle}}};
    NamedTexts m_document;
    NamedTexts m_record;
    std::string m_title;
    QStringList m_titles;
    Project m_project;

    int m_depth = 0;
    Section *m_section = nullptr;  ///< that the reader is in
    int m_textDepth = 0;           ///< of the text that it is in, wanted or not; 0 = in none
    std::string *m_text = nullptr; ///< that text; null = it is not wanted
};

bool Reader::StartElement(std::string_view name)
{
    ++m_depth;
    if (m_textDepth > 0)
        return false;
    switch (m_depth) {
    case 2:
        return EnterSection(name) || EnterText(m_document.Place(name));
    case 3:
        if (m_section->names.empty()) {
            m_title.clear();
            EnterText(&m_title);
        } else {
            m_record.Begin(m_section->names);
        }
        return name == m_section->child;
    case 4:
        return EnterText(m_record.Place(name));
    default:
        return true;
    }
}

void Reader::EndElement()
{
    if (m_depth == m_textDepth) {
        m_textDepth = 0;
        WantText(false);
    }
    if (m_depth == 3 && m_section)
        (this->*m_section->take)();
    else if (m_depth == 2)
        m_section = nullptr;
    else if (m_depth == 1)
        TakeDocument();
    --m_depth;
}

/// False for what is no section, and for one that was met before.
bool Reader::EnterSection(std::string_view name)
{
    const auto section = std::ranges::find(m_sections, QLatin1StringView(name), &Section::name);
    if (section == m_sections.end() || section->met)
        return false;
    section->met = true;
    m_section = &*section;
    return true;
}

/// Whether the text is wanted.
bool Reader::EnterText(std::string *text)
{
    m_textDepth = m_depth;
    m_text = text;
    WantText(text);
    return text;
}

void Reader::TakeDocument()
{
    TakeForm();
    for (const Section &section : m_sections)
        if (!section.met)
            Refuse(u"the element %1 is missing"_s.arg(section.name));
    m_project.source.SetMaxId(Number(namesOfDocument.back(), m_document[formFields.size() + 1]));
    if (!m_titles.isEmpty())
        m_project.TitleList = std::move(m_titles);
}

void Reader::TakeForm()
{
    const QString company = FromUtf8(m_document[0]);
    if (m_document.Has(0) && std::ranges::find(companyTags, company) == companyTags.end())
        Refuse(u"the company '%1' is not known"_s.arg(company.left(40)));
    RefuseIncomplete(m_document, namesOfDocument);
    for (size_t i = 0; i < formFields.size(); ++i)
        m_project.*formFields[i].text = FromUtf8(m_document[i + 1]);
}

void Reader::TakeQuestion()
{
    RefuseIncomplete(m_record, namesOfQuestion);
    m_project.source.Questions().Append({
        .Order = Number("Order"_L1, m_record[0]),
        .Title = FromUtf8(m_record[2]),
        .Question = FromUtf8(m_record[4]),
        .Type = FromUtf8(m_record[1]),
        .ColumnName = FromUtf8(m_record[3]),
        .Id = Number("Id"_L1, m_record[5]),
    });
}

void Reader::TakeItem()
{
    RefuseIncomplete(m_record, namesOfItem);
    m_project.source.Items().Append(
        {.Id = Number("Id"_L1, m_record[0]), .Item = FromUtf8(m_record[1])});
}

int Reader::Number(QLatin1StringView name, const std::string &text)
{
    int number = 0;
    const char *end = text.data() + text.size();
    if (const auto read = std::from_chars(text.data(), end, number);
        read.ec != std::errc() || read.ptr != end)
        Refuse(u"%1 is '%2', which is no whole number of 32 bits"_s.arg(name,
                                                                        FromUtf8(text).left(40)));
    return number;
}

void Reader::RefuseIncomplete(const NamedTexts &texts, Names names)
{
    for (size_t i = 0; i < names.size(); ++i)
        if (!texts.Has(i))
            Refuse(u"the element %1 is missing"_s.arg(names[i]));
}

} // namespace

Result<Project> ReadProject(const QByteArray &bytes)
{
    return Reader().Read(bytes);
}

} // namespace vellumo
