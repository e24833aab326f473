#include "help/reader/help_file.h"

#include "help/html_text.h"
#include "help/reader/viewer_objects.h"
#include "help/viewer_format.h"

namespace vellumo {

HelpFile::HelpFile(Archive archive) : m_archive(std::move(archive))
{
    ReadSystem();
    ReadTopics();
}

Result<HelpFile> HelpFile::Open(const QString &path)
{
    auto archive = Archive::Open(path);
    if (!archive)
        return archive.error();
    HelpFile help(std::move(*archive));
    if (help.m_defaultPage.isEmpty())
        return DamagedHelp(path);
    return help;
}

QString HelpFile::PageOf(quint32 context) const
{
    const auto found = m_topics.find(context);
    return found == m_topics.end() ? m_defaultPage : found->second;
}

QString HelpFile::TitleOf(const QString &page) const
{
    const auto bytes = Object(page);
    const QString title = bytes ? TitleIn(DecodeHtml(*bytes)) : QString();
    return title.isEmpty() ? page : title;
}

/// The bytes of an object that the viewer keeps for itself; empty where there is none.
QByteArray HelpFile::Internal(const QString &name) const
{
    const auto bytes = Object(name);
    return bytes ? *bytes : QByteArray();
}

void HelpFile::ReadSystem()
{
    auto items = ReadSystemItems(Internal(systemObject::name));
    m_title = items[systemObject::title];
    ReadContentsFile(items[systemObject::contentsFile]);
    m_defaultPage = m_archive.Locate(items[systemObject::defaultPage]);
    for (const ContentsEntry &entry : m_contents)
        if (m_defaultPage.isEmpty())
            m_defaultPage = entry.page;
}

void HelpFile::ReadTopics()
{
    const QByteArray texts = Internal(stringsName);
    for (const ContextEntry &entry : ReadContexts(Internal(contextObject::name))) {
        const QString page = m_archive.Locate(TextAt(texts, entry.page));
        if (!page.isEmpty())
            m_topics.emplace(entry.number, page);
    }
}

void HelpFile::ReadContentsFile(const QString &name)
{
    m_contents = ReadContents(DecodeHtml(Internal(m_archive.Locate(name))));
    for (ContentsEntry &entry : m_contents)
        entry.page = m_archive.Locate(entry.page);
}

} // namespace vellumo
