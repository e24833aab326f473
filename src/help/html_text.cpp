#include "help/html_text.h"

#include "platform/code_page.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr struct {
    QLatin1StringView name;
    char16_t character;
} entities[] = {
    {QLatin1StringView("amp"), u'&'},   {QLatin1StringView("lt"), u'<'},
    {QLatin1StringView("gt"), u'>'},    {QLatin1StringView("quot"), u'"'},
    {QLatin1StringView("apos"), u'\''}, {QLatin1StringView("nbsp"), u'\u00A0'},
};

/// The character that stands between '&' and ';'; empty for a name that is not known.
QString EntityText(QStringView name)
{
    if (name.startsWith(u'#')) {
        const bool isHex = name.sliced(1).startsWith(u'x', Qt::CaseInsensitive);
        bool isNumber = false;
        const uint code = name.sliced(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
        return isNumber && code > 0 && code <= QChar::LastValidCodePoint
                   ? QStringView(QChar::fromUcs4(code)).toString()
                   : QString();
    }
    for (const auto &entity : entities)
        if (name == entity.name)
            return QChar(entity.character);
    return {};
}

QString ReadEntities(const QString &text)
{
    static const QRegularExpression entity(u"&([^;&\\s]{1,10});"_s);
    QString read;
    qsizetype from = 0;
    for (auto found = entity.globalMatch(text); found.hasNext();) {
        const auto match = found.next();
        const QString character = EntityText(match.capturedView(1));
        if (character.isEmpty())
            continue;
        read += text.sliced(from, match.capturedStart() - from) + character;
        from = match.capturedEnd();
    }
    return read + text.sliced(from);
}

std::map<QString, QString> ReadAttributes(const QString &text)
{
    static const QRegularExpression attribute(
        uR"re(([a-zA-Z-]++)\s*+=\s*+(?|"([^"]*+)"|'([^']*+)'|([^\s"'>]++)))re"_s);
    std::map<QString, QString> attributes;
    for (auto found = attribute.globalMatch(text); found.hasNext();) {
        const auto match = found.next();
        attributes.emplace(match.captured(1).toLower(), ReadEntities(match.captured(2)));
    }
    return attributes;
}

} // namespace

QString HtmlTag::Attribute(const QString &attribute) const
{
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? QString() : found->second;
}

QString DecodeHtml(const QByteArray &bytes)
{
    // Stateless, or a last letter of windows-1252 would count as one that is still to be completed.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return decoder.hasError() ? FromWindows1252(bytes) : text;
}

std::vector<HtmlTag> TagsOf(const QString &html)
{
    // Possessive throughout, so that a long text without an end costs no stack.
    static const QRegularExpression tag(
        uR"re(<(/?[a-zA-Z][a-zA-Z0-9]*+)((?:[^<>"']++|"[^"]*+"|'[^']*+')*+)>)re"_s);
    std::vector<HtmlTag> tags;
    for (auto found = tag.globalMatch(html); found.hasNext();) {
        const auto match = found.next();
        tags.push_back({match.captured(1).toLower(), ReadAttributes(match.captured(2)),
                        match.capturedStart(), match.capturedEnd()});
    }
    return tags;
}

QString TitleIn(const QString &html)
{
    const std::vector<HtmlTag> tags = TagsOf(html);
    const auto title = std::ranges::find(tags, u"title"_s, &HtmlTag::name);
    const auto end =
        std::find_if(title, tags.end(), [](const HtmlTag &tag) { return tag.name == u"/title"; });
    if (end == tags.end())
        return {};
    return ReadEntities(html.sliced(title->end, end->start - title->end)).simplified();
}

} // namespace vellumo
