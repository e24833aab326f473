#pragma once

#include "platform/code_page.h"

#include "vellumo_run.h"

namespace vellumo {

/// Databases are made without tools, unless a test puts some in place.
class CreateCommand : public VellumoRun
{
protected:
    CreateCommand()
    {
        qputenv("PATH", "/usr/bin:/bin");
        qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
        QDir(m_folder.path()).mkdir(QStringLiteral("out"));
        QDir(m_folder.path()).mkdir(QStringLiteral("tools"));
    }

    // The folder goes away with the test, and the next one makes its own in the system's.
    ~CreateCommand() override { qputenv("TMPDIR", m_systemTemporary); }

    /// Uses fakes as both tools.
    void UseTools(const QByteArray &pilrc, const QByteArray &buildPrc)
    {
        m_tools = {QStringLiteral("--pilrc"), InFolder(QStringLiteral("tools/pilrc")),
                   QStringLiteral("--build-prc"), InFolder(QStringLiteral("tools/build-prc"))};
        PutTool(QStringLiteral("pilrc"), pilrc);
        PutTool(QStringLiteral("build-prc"), buildPrc);
    }

    void PutTool(const QString &name, const QByteArray &orders)
    {
        PutShellTool(name, "exec " FAKE_TOOL " " + orders);
    }

    void PutShellTool(const QString &name, const QByteArray &commands)
    {
        const QString path = InFolder(QStringLiteral("tools/") + name);
        WriteBytes(path, "#!/bin/sh\n" + commands + "\n");
        QFile::setPermissions(path, QFile::Permissions(0x7755));
    }

    /// Puts a builder in place that leaves these bytes for a database, whatever it is given.
    void UseBuilderThatLeaves(const QByteArray &database)
    {
        UseTools("print fine", "print fine");
        WriteBytes(InFolder(QStringLiteral("left.prc")), database);
        PutShellTool(QStringLiteral("build-prc"),
                     "cp " + QFile::encodeName(InFolder(QStringLiteral("left.prc"))) + " \"$5\"");
    }

    int Create(const QStringList &projects)
    {
        return Run(QStringList{QStringLiteral("create"), QStringLiteral("-o"),
                               InFolder(QStringLiteral("out"))} +
                   m_tools + projects);
    }

    QStringList Made() const { return NamesIn(InFolder(QStringLiteral("out"))); }
    QStringList LeftBehind() const { return NamesIn(m_temporary.path()); }

    const QByteArray m_systemTemporary = qgetenv("TMPDIR");
    QTemporaryDir m_temporary;
    QStringList m_tools; ///< the words that name them; none = they are not used
};

inline const QString fittingNestbox = DataFile(QStringLiteral("misfits/Nestbox-that-fits.vmp"));

inline QByteArray InCodePage(const QString &text)
{
    QByteArray bytes;
    AppendWindows1252(bytes, text);
    return bytes;
}

/// Writes the fittingNestbox project under another name to the path, and gives that.
inline QString ProjectNamed(const QString &name, const QString &path)
{
    WriteBytes(path, BytesOf(fittingNestbox).replace("[Nestbox]", '[' + InCodePage(name) + ']'));
    return path;
}

} // namespace vellumo
