#pragma once

#include "platform/code_page.h"

#include "vellumo_run.h"

namespace vellumo {

/// Tools are found along PATH: the real ones, unless a test puts others in their place.
class CreateCommand : public VellumoRun
{
protected:
    CreateCommand()
    {
        qputenv("PATH", PROGRAMS);
        qputenv("TMPDIR", QFile::encodeName(m_temporary.path()));
        QDir(m_folder.path()).mkdir(QStringLiteral("out"));
        QDir(m_folder.path()).mkdir(QStringLiteral("tools"));
    }

    // The folder goes away with the test, and the next one makes its own in the system's.
    ~CreateCommand() override { qputenv("TMPDIR", m_systemTemporary); }

    /// Uses the named fake in place of both tools.
    void UseTools(const QByteArray &pilrc, const QByteArray &buildPrc)
    {
        qputenv("PATH", QFile::encodeName(InFolder(QStringLiteral("tools"))) + ":/usr/bin:/bin");
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
                   projects);
    }

    QStringList Made() const { return NamesIn(InFolder(QStringLiteral("out"))); }
    QStringList LeftBehind() const { return NamesIn(m_temporary.path()); }

    const QByteArray m_systemTemporary = qgetenv("TMPDIR");
    QTemporaryDir m_temporary;
};

inline const QString siteVisit = DataFile(QStringLiteral("../../examples/SiteVisit.vmp"));
inline const QString nestbox = DataFile(QStringLiteral("misfits/Nestbox-that-fits.vmp"));

inline QByteArray InCodePage(const QString &text)
{
    QByteArray bytes;
    AppendWindows1252(bytes, text);
    return bytes;
}

/// Writes the nestbox project under another name to the path, and gives that.
inline QString ProjectNamed(const QString &name, const QString &path)
{
    WriteBytes(path, BytesOf(nestbox).replace("[Nestbox]", '[' + InCodePage(name) + ']'));
    return path;
}

} // namespace vellumo
