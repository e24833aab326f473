#pragma once

#include <QSet>
#include <QString>

namespace vellumo {

/// Names of a form sheet that must not meet, without regard to case.
class SheetNames
{
public:
    /// A name like the text that is valid and not yet taken, and takes it. A valid one begins with
    /// a letter or an underscore and goes on with letters, digits, hyphens, underscores and full
    /// stops, all of ASCII; other characters become underscores.
    QString TakeName(const QString &text);

    /// Likewise for the name of a choice, in which everything stands but white space, and "${",
    /// which would begin a reference.
    QString TakeChoice(const QString &text);

private:
    QString TakeUnique(const QString &name);

    QSet<QString> m_taken;
};

} // namespace vellumo
