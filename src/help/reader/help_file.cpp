#include "help/reader/help_file.h"

#include "help/archive_format.h"
#include "help/html_text.h"
#include "help/reader/archive_check.h"
#include "help/reader/viewer_objects.h"
#include "help/viewer_format.h"

#include <QFile>

#include <chm_lib.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr quint64 largestObject = 16 << 20;

Error Damaged(const QString &path)
{
    return {u"This is not a help file, or it is damaged."_s, path};
}

bool Find(chmFile *file, const QByteArray &fullName, chmUnitInfo &unit)
{
    return chm_resolve_object(file, fullName.constData(), &unit) == CHM_RESOLVE_SUCCESS;
}

/// All bytes of an object that is not too large, or none of them.
std::optional<QByteArray> Read(chmFile *file, chmUnitInfo &unit)
{
    QByteArray bytes(qsizetype(unit.length), '\0');
    const LONGINT64 read = chm_retrieve_object(
        file, &unit, reinterpret_cast<unsigned char *>(bytes.data()), 0, bytes.size());
    return read == bytes.size() ? std::optional(bytes) : std::nullopt;
}

} // namespace

void HelpFile::Closer::operator()(chmFile *file) const
{
    chm_close(file);
}

HelpFile::HelpFile(QString path, chmFile *file) : m_path(std::move(path)), m_file(file) {}

Result<HelpFile> HelpFile::Open(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error{file.errorString(), path};
    if (!IsSoundArchive(file))
        return Damaged(path);

    HelpFile help(path, chm_open(QFile::encodeName(path).constData()));
    if (!help.m_file)
        return Damaged(path);
    help.ReadSystem();
    help.ReadTopics();
    if (help.m_defaultPage.isEmpty())
        return Damaged(path);
    return help;
}

QString HelpFile::PageOf(quint32 context) const
{
    const auto found = m_topics.find(context);
    return found == m_topics.end() ? m_defaultPage : found->second;
}

Result<QByteArray> HelpFile::Object(const QString &name) const
{
    chmUnitInfo unit;
    if (!Find(m_file.get(), '/' + name.toUtf8(), unit))
        return Error{u"The help has no page %1."_s.arg(name), m_path};
    if (unit.length > largestObject)
        return Error{u"The page %1 is too large."_s.arg(name), m_path};
    const auto bytes = Read(m_file.get(), unit);
    if (!bytes)
        return Error{u"The page %1 is damaged."_s.arg(name), m_path};
    return *bytes;
}

QString HelpFile::TitleOf(const QString &page) const
{
    const auto bytes = Object(page);
    const QString title = bytes ? TitleIn(DecodeHtml(*bytes)) : QString();
    return title.isEmpty() ? page : title;
}

bool HelpFile::Exists(const QString &name) const
{
    chmUnitInfo unit;
    return !name.isEmpty() && !name.endsWith(u'/') && Find(m_file.get(), '/' + name.toUtf8(), unit);
}

/// The page that a stored path means; empty where there is none. Some compilers put the folder in
/// which they ran in front of it, so leading folders are dropped until the page exists.
QString HelpFile::Locate(QString stored) const
{
    if (stored.size() > archive::longestName)
        return {};
    stored.replace(u'\\', u'/');
    const qsizetype anchor = stored.indexOf(u'#');
    const QString suffix = anchor < 0 ? QString() : stored.sliced(anchor);
    for (QString name = stored.first(stored.size() - suffix.size()); !name.isEmpty();) {
        if (Exists(name))
            return name + suffix;
        const qsizetype slash = name.indexOf(u'/');
        name = slash < 0 ? QString() : name.sliced(slash + 1);
    }
    return {};
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
    m_defaultPage = Locate(items[systemObject::defaultPage]);
    for (const ContentsEntry &entry : m_contents)
        if (m_defaultPage.isEmpty())
            m_defaultPage = entry.page;
}

void HelpFile::ReadTopics()
{
    const QByteArray texts = Internal(stringsName);
    for (const ContextEntry &entry : ReadContexts(Internal(contextObject::name))) {
        const QString page = Locate(TextAt(texts, entry.page));
        if (!page.isEmpty())
            m_topics.emplace(entry.number, page);
    }
}

void HelpFile::ReadContentsFile(const QString &name)
{
    m_contents = ReadContents(DecodeHtml(Internal(Locate(name))));
    for (ContentsEntry &entry : m_contents)
        entry.page = Locate(entry.page);
}

} // namespace vellumo
