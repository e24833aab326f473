#pragma once

#include <QString>

#include <map>
#include <vector>

namespace vellumo {

// As much of HTML as the help needs to know beside the viewer: tags, their attributes, the title.

struct HtmlTag {
    QString name;                          ///< in lower case; a closing tag's begins with a slash
    std::map<QString, QString> attributes; ///< names in lower case, values with their entities read
    qsizetype start = 0;                   ///< of its '<' in the text
    qsizetype end = 0;                     ///< behind its '>'

    QString Attribute(const QString &attribute) const;
};

/// The text of bytes in UTF-8 or else in windows-1252, the two codings of help pages.
QString DecodeHtml(const QByteArray &bytes);

/// The tags in their order; what is not closed by '>' is none.
std::vector<HtmlTag> TagsOf(const QString &html);

/// The text with its white space made single; empty where the page has no title.
QString TitleIn(const QString &html);

} // namespace vellumo
