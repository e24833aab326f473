#pragma once

#include "model/basRegistry.h"

#include "support/files.h"
#include "support/print.h"

#include <gtest/gtest.h>

namespace vellumo {

inline constexpr char asFirstCreated[] =
    "<Vmdesigner>\r\n<ShowOpenForm>1</ShowOpenForm>\r\n</Vmdesigner>";

/// The settings file in a folder of its own.
class BasRegistry : public testing::Test
{
protected:
    QString Folder() const { return m_folder.path(); }
    QString File() const { return Folder() + QStringLiteral("/settings.ini"); }
    void Put(const QByteArray &bytes) const { ASSERT_TRUE(WriteBytes(File(), bytes)); }
    void PutValue(const QByteArray &value) const
    {
        Put("<Vmdesigner><ShowOpenForm>" + value + "</ShowOpenForm></Vmdesigner>");
    }
    /// Everybody may read, nobody write.
    void ForbidWriting() const
    {
        const QFile::Permissions reading = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
        QFile::setPermissions(File(), reading);
        ASSERT_TRUE(QFile::setPermissions(Folder(), reading | QFile::ExeOwner | QFile::ExeGroup |
                                                        QFile::ExeOther));
    }

    QTemporaryDir m_folder;
};

} // namespace vellumo
