#pragma once

#include "fuzz/require.h"

#include <QFile>
#include <QTemporaryDir>

/// A folder for the life of the program, for code that reads its input from a file.
inline const QTemporaryDir &ScratchFolder()
{
    static const QTemporaryDir folder;
    Require(folder.isValid(), "there is a folder for files");
    return folder;
}

/// Puts the input into a file of the scratch folder and returns its path.
inline QString ScratchFile(const QString &name, const std::uint8_t *data, std::size_t size)
{
    QFile file(ScratchFolder().filePath(name));
    const QByteArray bytes = BytesOf(data, size);
    Require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
            "the input can be written");
    return file.fileName();
}
