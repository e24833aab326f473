#include "model/xml_reader.h"

#include "platform/code_page.h"

#include <QStringDecoder>

#include <expat.h>

#include <algorithm>
#include <memory>
#include <numeric>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int mostForeignNames = 200'000; // expat keeps each; a project has none
constexpr QLatin1StringView tooManyNames = "there are too many attributes and unknown elements"_L1;
constexpr qsizetype longestTag = 1 << 20; // of so many names
constexpr qsizetype pieceSize = 1 << 16;

/// Each attribute has an equals sign.
bool MayHaveTooManyAttributes(QByteArrayView bytes)
{
    int count = 0;
    for (qsizetype at = bytes.indexOf('='); at >= 0; at = bytes.indexOf('=', at + 1))
        if (++count > mostForeignNames)
            return true;
    return false;
}

bool IsWindows1252(const char *name)
{
    return qstricmp(name, "windows-1252") == 0 || qstricmp(name, "cp1252") == 0;
}

void FillWithWindows1252(XML_Encoding &encoding)
{
    QByteArray bytes(std::ssize(encoding.map), Qt::Uninitialized);
    std::iota(bytes.begin(), bytes.end(), char(0));
    std::ranges::transform(FromWindows1252(bytes), encoding.map,
                           [](QChar character) { return character.unicode(); });
}

} // namespace

/// What expat calls; the first argument is the reader.
struct XmlReader::Callbacks {
    static XmlReader &Of(void *reader) { return *static_cast<XmlReader *>(reader); }

    // Some calls may still come after the parser was told to stop.
    static bool Listens(void *reader) { return Of(reader).m_refusal.isNull(); }

    static void Declaration(void *reader, const char *version, const char *, int)
    {
        if (qstrcmp(version, "1.0") != 0)
            Of(reader).Refuse(u"the version of XML is not 1.0"_s);
    }

    static void DocumentType(void *reader, const char *, const char *, const char *, int)
    {
        Of(reader).Refuse(u"a project has no document type"_s);
    }

    static void Start(void *reader, const char *name, const char **)
    {
        if (Listens(reader))
            Of(reader).CountForeignNames(Of(reader).StartElement(name));
    }

    static void End(void *reader, const char *)
    {
        if (Listens(reader))
            Of(reader).EndElement();
    }

    static void Characters(void *reader, const char *piece, int length)
    {
        if (Listens(reader))
            Of(reader).Text({piece, static_cast<size_t>(length)});
    }

    static int UnknownEncoding(void *reader, const char *name, XML_Encoding *encoding)
    {
        if (!IsWindows1252(name)) {
            Of(reader).m_foreignEncoding = name;
            return XML_STATUS_ERROR;
        }
        *encoding = {};
        FillWithWindows1252(*encoding);
        return XML_STATUS_OK;
    }
};

Outcome XmlReader::ReadDocument(const QByteArray &bytes)
{
    // A mark tells more than a declaration, which some editors leave as it was.
    Outcome read = Parse(bytes, bytes.startsWith("\xEF\xBB\xBF") ? "UTF-8" : nullptr);
    if (m_foreignEncoding.isEmpty() || !m_refusal.isNull())
        return read;
    // No element was told yet, and the toolkit may know the encoding.
    QStringDecoder decoder(m_foreignEncoding.constData());
    const QString text = decoder.isValid() ? decoder(bytes) : QString();
    return decoder.isValid() && !decoder.hasError() ? Parse(text.toUtf8(), "UTF-8") : read;
}

Outcome XmlReader::Parse(const QByteArray &bytes, const char *encoding)
{
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(encoding), XML_ParserFree);
    m_parser = parser.get();
    XML_SetUserData(m_parser, this);
    XML_SetXmlDeclHandler(m_parser, Callbacks::Declaration);
    XML_SetStartDoctypeDeclHandler(m_parser, Callbacks::DocumentType);
    XML_SetElementHandler(m_parser, Callbacks::Start, Callbacks::End);
    XML_SetUnknownEncodingHandler(m_parser, Callbacks::UnknownEncoding, this);
    if (Feed(bytes))
        return done;
    const auto line = static_cast<int>(XML_GetCurrentLineNumber(m_parser));
    if (!m_refusal.isNull())
        return Error{m_refusal, {}, line};
    return Error{QString::fromLatin1(XML_ErrorString(XML_GetErrorCode(m_parser))), {}, line};
}

/// Attributes are told with their tag, which expat wants to see whole; so they come in pieces where
/// there may be too many. Without need they do not: it counts the lines of each piece.
bool XmlReader::Feed(QByteArrayView bytes)
{
    const qsizetype most = MayHaveTooManyAttributes(bytes) ? pieceSize : bytes.size();
    for (qsizetype fed = 0;;) {
        const qsizetype size = std::min(most, bytes.size() - fed);
        const bool last = fed + size == bytes.size();
        if (XML_Parse(m_parser, bytes.data() + fed, static_cast<int>(size), last) != XML_STATUS_OK)
            return false;
        if (last)
            return true;
        fed += size;
        if (fed - XML_GetCurrentByteIndex(m_parser) > longestTag) {
            Refuse(tooManyNames);
            return false;
        }
    }
}

void XmlReader::CountForeignNames(bool elementIsKnown)
{
    const int attributes = XML_GetSpecifiedAttributeCount(m_parser) / 2; // it counts values, too
    m_foreignNames += attributes + (elementIsKnown ? 0 : 1);
    if (m_foreignNames > mostForeignNames)
        Refuse(tooManyNames);
}

void XmlReader::WantText(bool wanted)
{
    XML_SetCharacterDataHandler(m_parser, wanted ? Callbacks::Characters : nullptr);
}

void XmlReader::Refuse(const QString &reason)
{
    if (!m_refusal.isNull())
        return;
    m_refusal = reason;
    XML_StopParser(m_parser, XML_FALSE);
}

} // namespace vellumo
