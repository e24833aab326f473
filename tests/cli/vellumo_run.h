#pragma once

#include "cli/projects.h"
#include "cli/vellumo.h"
#include "support/files.h"
#include "support/print.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <sstream>

namespace vellumo {

inline const QString anIdentifier = QStringLiteral("0123456789ABCDEF0123456789ABCDEF");

/// The headless command run in a folder of its own, with what it printed.
class VellumoRun : public testing::Test
{
protected:
    QString InFolder(const QString &name) const { return m_folder.filePath(name); }

    int Run(const QStringList &words, const QByteArray &input = {})
    {
        out.str({});
        err.str({});
        std::istringstream in(input.toStdString());
        const int exit =
            RunVellumo(words, {.in = in, .out = out, .err = err, .showProgress = watched});
        if (words.contains(QStringLiteral("--json")))
            KeepLines();
        return exit;
    }

    /// The objects of an output in JSON, one a line.
    QList<QJsonObject> Objects() const
    {
        QList<QJsonObject> objects;
        for (const QByteArray &line : QByteArray::fromStdString(out.str()).split('\n')) {
            if (!line.isEmpty())
                objects.append(QJsonDocument::fromJson(line).object());
        }
        return objects;
    }

    QString Out() const { return QString::fromStdString(out.str()); }
    QString Err() const { return QString::fromStdString(err.str()); }

    QTemporaryDir m_folder;
    std::ostringstream out, err;
    bool watched = false; ///< whether a person looks on

private:
    /// For the test that holds the objects of all tests against their description.
    void KeepLines() const
    {
        const QString test = testing::UnitTest::GetInstance()->current_test_info()->file();
        static QFile file;
        const QString name = QStringLiteral(JSON_LINES "/") + QFileInfo(test).completeBaseName();
        if (file.fileName() != name) {
            file.close();
            file.setFileName(name);
            ASSERT_TRUE(QDir().mkpath(QStringLiteral(JSON_LINES)));
            ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Unbuffered));
        }
        file.write(QByteArray::fromStdString(out.str()));
    }

    // The application folder is that of the running test, where no tool lies: PATH decides.
    char m_name[8] = "vellumo";
    char *m_arguments[2] = {m_name, nullptr};
    int m_count = 1;
    QCoreApplication m_application{m_count, m_arguments};
};

} // namespace vellumo
