#pragma once

#include <QByteArray>
#include <QStringList>

namespace vellumo {

/// The texts of a form as its database has them, in windows-1252.
struct FormTexts {
    QByteArray title = {};
    QByteArray question = {};
    QList<QByteArray> items = {};
};

/// What of these texts the screen of a type's form does not show, a sentence each.
QStringList MisfitsOf(const FormTexts &texts, const QString &type);

/// What of the description of a database the handheld does not show, a sentence; else empty.
QString MisfitOfDescription(QByteArrayView description);

} // namespace vellumo
