#include "model/project_reader.h"

#include "model/form_fields.h"
#include "model/project_format.h"
#include "platform/code_page.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Whether a number's text is without the blanks and plus sign that a conversion passes over.
bool IsPlain(const QString &number)
{
    return number.back().isDigit() && (number.front() == u'-' || number.front().isDigit());
}

/// The texts of the elements of some names, in the order of the names; null = not met yet.
template <size_t count> struct Texts {
    std::array<QLatin1StringView, count> names;
    std::array<QString, count> values = {};
};

/// The company, the form information and the next Id.
constexpr auto namesOfDocument = [] {
    std::array<QLatin1StringView, formFields.size() + 2> names;
    names.front() = QLatin1StringView("Company");
    for (size_t i = 0; i < formFields.size(); ++i)
        names[i + 1] = formFields[i].element;
    names.back() = QLatin1StringView("MaxId");
    return names;
}();
using DocumentTexts = Texts<namesOfDocument.size()>;

class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
    {
        m_xml.setNamespaceProcessing(false);
        Feed(bytes);
    }

    Result<Project> Read()
    {
        while (!m_xml.atEnd() && !m_xml.isStartElement()) {
            m_xml.readNext();
            if (m_xml.isDTD() && m_xml.text().contains("<!ENTITY"_L1))
                Refuse(u"a project declares no entities"_s);
        }
        if (m_xml.isStartElement())
            ReadDocument();
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            return Error{m_xml.errorString(), {}, static_cast<int>(m_xml.lineNumber())};
        m_project.source.MoveFirst();
        return std::move(m_project);
    }

private:
    void Feed(const QByteArray &bytes);
    void ReadDocument();
    void TakeForm(const DocumentTexts &texts);
    void ReadQuestions();
    void ReadItems();
    void ReadTitles();
    QString ReadText();
    template <size_t count> void ReadTexts(Texts<count> &record);
    template <size_t count> bool TakeText(Texts<count> &texts);
    template <size_t count> void RefuseIncomplete(const Texts<count> &texts);
    int Number(QLatin1StringView name, const QString &text);
    void Refuse(const QString &reason);

    QXmlStreamReader m_xml;
    Project m_project;
};

/// The parser knows windows-1252 only on some platforms, so those bytes are decoded for it.
void Reader::Feed(const QByteArray &bytes)
{
    static const QRegularExpression declaration(
        uR"(^<\?xml[^>]*\sencoding\s*=\s*["'](windows-1252|cp1252)["'])"_s,
        QRegularExpression::CaseInsensitiveOption);
    if (declaration.match(QString::fromLatin1(bytes.first(std::min<qsizetype>(bytes.size(), 200))))
            .hasMatch())
        m_xml.addData(FromWindows1252(bytes));
    else
        m_xml.addData(bytes);
}

void Reader::ReadDocument()
{
    struct Section {
        QLatin1StringView name;
        void (Reader::*read)();
        bool met = false;
    } sections[] = {{"rcMain"_L1, &Reader::ReadQuestions},
                    {"rcChilds"_L1, &Reader::ReadItems},
                    {"TitleList"_L1, &Reader::ReadTitles}};

    DocumentTexts texts = {namesOfDocument};
    while (m_xml.readNextStartElement()) {
        const auto section = std::ranges::find_if(
            sections, [this](const Section &known) { return m_xml.name() == known.name; });
        if (section != std::end(sections) && !section->met) {
            section->met = true;
            (this->*section->read)();
        } else if (!TakeText(texts)) {
            m_xml.skipCurrentElement();
        }
    }

    TakeForm(texts);
    for (const Section &section : sections)
        if (!section.met)
            Refuse(u"the element %1 is missing"_s.arg(section.name));
    m_project.source.SetMaxId(Number(texts.names.back(), texts.values.back()));
}

void Reader::TakeForm(const DocumentTexts &texts)
{
    const QString &company = texts.values.front();
    if (!company.isNull() && std::ranges::find(companyTags, company) == companyTags.end())
        Refuse(u"the company '%1' is not known"_s.arg(company.left(40)));
    RefuseIncomplete(texts);
    for (size_t i = 0; i < formFields.size(); ++i)
        m_project.*formFields[i].text = texts.values[i + 1];
}

void Reader::ReadQuestions()
{
    while (m_xml.readNextStartElement()) {
        Texts<6> texts = {
            {"Order"_L1, "Type"_L1, "Title"_L1, "ColumnName"_L1, "Question"_L1, "Id"_L1}};
        ReadTexts(texts);
        auto &[order, type, title, columnName, question, id] = texts.values;
        m_project.source.AddQuestion();
        m_project.source.Questions().Current() = {
            .Order = Number("Order"_L1, order),
            .Title = std::move(title),
            .Question = std::move(question),
            .Type = std::move(type),
            .ColumnName = std::move(columnName),
            .Id = Number("Id"_L1, id),
        };
    }
}

void Reader::ReadItems()
{
    while (m_xml.readNextStartElement()) {
        Texts<2> texts = {{"Id"_L1, "Item"_L1}};
        ReadTexts(texts);
        auto &[id, item] = texts.values;
        m_project.source.AddItem();
        m_project.source.Items().Current() = {.Id = Number("Id"_L1, id), .Item = std::move(item)};
    }
}

void Reader::ReadTitles()
{
    QStringList titles;
    while (m_xml.readNextStartElement())
        titles.append(ReadText());
    if (!titles.isEmpty())
        m_project.TitleList = titles;
}

template <size_t count> void Reader::ReadTexts(Texts<count> &texts)
{
    while (m_xml.readNextStartElement())
        if (!TakeText(texts))
            m_xml.skipCurrentElement();
    RefuseIncomplete(texts);
}

/// Reads the current element where its text is wanted and was not met before.
template <size_t count> bool Reader::TakeText(Texts<count> &texts)
{
    const auto name = std::ranges::find_if(
        texts.names, [this](QLatin1StringView wanted) { return m_xml.name() == wanted; });
    if (name == texts.names.end())
        return false;
    QString &value = texts.values[static_cast<size_t>(name - texts.names.begin())];
    if (!value.isNull())
        return false;
    value = ReadText();
    return true;
}

/// The text of the current element and of those within it; never null. Goes by a counter, not by
/// recursion: the depth of a file is whatever its author made it.
QString Reader::ReadText()
{
    QString text = u""_s;
    for (int depth = 1; depth > 0 && !m_xml.atEnd();) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        else if (token == QXmlStreamReader::Characters)
            text += m_xml.text();
    }
    return text;
}

template <size_t count> void Reader::RefuseIncomplete(const Texts<count> &texts)
{
    for (size_t i = 0; i < count; ++i)
        if (texts.values[i].isNull())
            Refuse(u"the element %1 is missing"_s.arg(texts.names[i]));
}

int Reader::Number(QLatin1StringView name, const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || !IsPlain(text))
        Refuse(u"%1 is '%2', which is no whole number of 32 bits"_s.arg(name, text.left(40)));
    return number;
}

/// Keeps the first reason: what follows a fault is often its consequence.
void Reader::Refuse(const QString &reason)
{
    if (!m_xml.hasError())
        m_xml.raiseError(reason);
}

} // namespace

Result<Project> ReadProject(const QByteArray &bytes)
{
    return Reader(bytes).Read();
}

} // namespace vellumo
