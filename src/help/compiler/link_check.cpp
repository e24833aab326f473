#include "help/compiler/link_check.h"

#include "help/html_text.h"

#include <QUrl>

#include <set>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// What the pages offer and what they ask for.
struct Links {
    std::set<QString> targets; ///< "page" and "page#anchor"
    std::vector<std::pair<QString, QString>> wanted;
};

void ReadPage(const QString &page, const QString &html, Links &links)
{
    for (const HtmlTag &tag : TagsOf(html)) {
        if (tag.name == u"a" && tag.attributes.contains(u"name"_s))
            links.targets.insert(page + u'#' + tag.Attribute(u"name"_s));
        for (const QString &attribute : {u"href"_s, u"src"_s})
            if (tag.attributes.contains(attribute))
                links.wanted.emplace_back(page, tag.Attribute(attribute));
        if (tag.name == u"param" && tag.Attribute(u"name"_s).toLower() == u"local")
            links.wanted.emplace_back(page, tag.Attribute(u"value"_s));
    }
}

} // namespace

QStringList FindBrokenLinks(const std::map<QString, QByteArray> &files)
{
    Links links;
    for (const auto &[name, bytes] : files) {
        links.targets.insert(name);
        if (name.endsWith(u".html") || name.endsWith(u".hhc"))
            ReadPage(name, DecodeHtml(bytes), links);
    }
    QStringList broken;
    for (const auto &[page, target] : links.wanted) {
        const QUrl url(target);
        const QString resolved = QUrl(page).resolved(url).toString();
        if (url.scheme().isEmpty() && !links.targets.contains(resolved))
            broken += page + u": "_s + target;
    }
    return broken;
}

} // namespace vellumo
