#pragma once

#include "help/reader/archive.h"
#include "help/reader/contents.h"

#include <map>
#include <vector>

namespace vellumo {

/// A compiled help file, open for reading. Pages go by their names in it, without a slash before
/// them: "pictures/103.png".
class HelpFile
{
public:
    /// Fails for what is no help file, or a damaged one, or one without a page to begin with.
    static Result<HelpFile> Open(const QString &path);

    QString Path() const { return m_archive.Path(); }
    QString Title() const { return m_title; }
    QString DefaultPage() const { return m_defaultPage; }
    /// The default page for a number that the file does not know.
    QString PageOf(quint32 context) const;
    /// In the order of the tree; every page that is named exists.
    const std::vector<ContentsEntry> &Contents() const { return m_contents; }

    /// The bytes of a page or a picture; fails for one that is not there or has more than 16 MiB.
    Result<QByteArray> Object(const QString &name) const { return m_archive.Object(name); }
    /// The title that a page gives itself, or else its name.
    QString TitleOf(const QString &page) const;

private:
    explicit HelpFile(Archive archive);
    QByteArray Internal(const QString &name) const;
    void ReadSystem();
    void ReadTopics();
    void ReadContentsFile(const QString &name);

    Archive m_archive;
    QString m_title;
    QString m_defaultPage;
    std::map<quint32, QString> m_topics;
    std::vector<ContentsEntry> m_contents;
};

} // namespace vellumo
