#pragma once

#include "help/reader/contents.h"
#include "platform/result.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <memory>
#include <vector>

struct chmFile;

namespace vellumo {

/// A compiled help file, open for reading. Pages go by their names in it, without a slash before
/// them: "pictures/103.png".
class HelpFile
{
public:
    /// Fails for what is no help file, or a damaged one, or one without a page to begin with.
    static Result<HelpFile> Open(const QString &path);

    QString Path() const { return m_path; }
    QString Title() const { return m_title; }
    QString DefaultPage() const { return m_defaultPage; }
    /// The default page for a number that the file does not know.
    QString PageOf(quint32 context) const;
    /// In the order of the tree; every page that is named exists.
    const std::vector<ContentsEntry> &Contents() const { return m_contents; }

    /// The bytes of a page or a picture; fails for one that is not there or has more than 16 MiB.
    Result<QByteArray> Object(const QString &name) const;
    /// The title that a page gives itself, or else its name.
    QString TitleOf(const QString &page) const;

private:
    struct Closer {
        void operator()(chmFile *file) const;
    };

    HelpFile(QString path, chmFile *file);
    bool Exists(const QString &name) const;
    QString Locate(QString stored) const;
    QByteArray Internal(const QString &name) const;
    void ReadSystem();
    void ReadTopics();
    void ReadContentsFile(const QString &name);

    QString m_path;
    std::unique_ptr<chmFile, Closer> m_file;
    QString m_title;
    QString m_defaultPage;
    std::map<quint32, QString> m_topics;
    std::vector<ContentsEntry> m_contents;
};

} // namespace vellumo
